#!/usr/bin/env python3
"""Makes a script of the macro module, which Excel alone could run, with its checks.

    worksheet_script.py MODULE SCRIPT

The script language is the module's without types: declarations lose theirs, and the few things that
only Excel has are in worksheet_prelude.vbs. Fails on a module that Visual Basic would refuse for a
reason that the script host does not see.
"""
import pathlib
import re
import sys

here = pathlib.Path(__file__).resolve().parent


def faults(module):
    procedure = re.compile(r"^(?:Public|Private) (Function|Sub) (\w+)\((.*?)\).*?\n(.*?)^End \1",
                           re.MULTILINE | re.DOTALL)
    names = [match[2].lower() for match in procedure.finditer(module)]
    for name in sorted({name for name in names if names.count(name) > 1}):
        yield f"{name} is there twice"
    for match in procedure.finditer(module):
        local = re.findall(r"\w+", re.sub(r"ParamArray|\(\)|As \w+", "", match[3]))
        for line in re.findall(r"^ *Dim (.*)$", match[4], re.MULTILINE):
            local += re.findall(r"\w+", re.sub(r"As \w+", "", line))
        local = [name.lower() for name in local]
        for name in sorted({name for name in local if local.count(name) > 1}):
            yield f"{match[2]} declares {name} twice"
    for number, line in enumerate(module.splitlines(), 1):
        if len(line) > 1000 or not line.isascii():
            yield f"line {number} is too long or not ASCII"
    for match in re.finditer(r"(?:.* _\n)+", module):
        if match[0].count("\n") > 24:
            yield "too many continued lines: " + match[0][:60]
    for match in re.finditer(r'"((?:[^"]|"")*)"', module):
        if len(match[1].replace('""', '"')) > 255 and "|" not in match[1]:
            yield "a text too long for the wizard: " + match[1][:60]


def script(module):
    for pattern, replacement in [
            (r"^Attribute .*\n", ""),
            (r"^Option Explicit\n", ""),
            (r"^Private (the\w+) As Object", r"Dim \1 : Set \1 = Nothing"),
            (r"^Private (the\w+)", r"Dim \1"),
            (r"^Private Const", "Const"),
            (r"\b(Macro|Description|Category|ArgumentDescriptions|Type|Temporary):=", ""),
            (r"Application\.MacroOptions\b", "Application.KeepOptions"),
            (r"ParamArray X\(\)", "X"),
            (r" As (Object|String|Variant)\b", ""),
            (r"\bMsgBox\b", "Say"),
            (r"Application\.Goto\b", "Application.GoTo_"),
            (r'CreateObject\("Calvex32\.ZvCalvex\.3"\)', "CreateObject(serverName)")]:
        module, count = re.subn(pattern, replacement, module, flags=re.MULTILINE)
        assert count, f"nothing like {pattern} in the module"
    return module


text = pathlib.Path(sys.argv[1]).read_text("ascii").replace("\r\n", "\n")
found = list(faults(text))
for fault in found:
    print(fault)
pathlib.Path(sys.argv[2]).write_text(
    (here / "worksheet_prelude.vbs").read_text() + script(text) +
    (here / "worksheet_checks.vbs").read_text())
sys.exit(bool(found))

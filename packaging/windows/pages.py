"""Pages of docs/ as HTML, for readers without a viewer of Markdown."""
import html
import re
import subprocess
import sys

# A page of text that is readable in any browser, bright or dark, and on paper.
FRAME = """<!DOCTYPE html>
<html lang="en">
<head>
<meta charset="utf-8">
<meta name="viewport" content="width=device-width">
<title>{title}</title>
<style>
:root {{ color-scheme: light dark; }}
body {{ font: 16px/1.5 "Segoe UI", sans-serif; max-width: 60rem; margin: 1rem auto 4rem; padding: 0 1rem; }}
nav {{ border-bottom: 1px solid #8886; padding-bottom: .5rem; }}
pre, code {{ font: 14px/1.4 Consolas, monospace; background: #8882; }}
pre {{ padding: .7rem; overflow-x: auto; }}
pre code {{ background: none; }}
table {{ border-collapse: collapse; }}
th, td {{ border: 1px solid #8886; padding: .25rem .6rem; text-align: left; vertical-align: top; }}
img {{ max-width: 100%; }}
</style>
</head>
<body>
<nav>{menu}</nav>
{body}</body>
</html>
"""


def title(markdown):
    return re.match(r"# (.*)", markdown)[1]


def anchor(heading):
    """The name of a heading in links, as viewers of Markdown make it."""
    words = html.unescape(re.sub(r"<[^>]+>", "", heading)).lower()
    return re.sub(r"[^\w\- ]", "", words).replace(" ", "-")


def body(markdown):
    text = subprocess.run(["cmark-gfm", "--extension", "table"], input=markdown, text=True,
                          capture_output=True, check=True).stdout
    return re.sub(r"<h(\d)>(.*?)</h\1>",
                  lambda m: f'<h{m[1]} id="{anchor(m[2])}">{m[2]}</h{m[1]}>', text)


def write(sources, folder, version):
    """Writes the pages into the folder. Links between them stay links; of those to other pages of docs/
    the words stay. VERSION in the name of a file becomes this one."""
    texts = {source.stem: re.sub(r"-VERSION\b", f"-{version}", source.read_text()) for source in sources}

    def link(match):
        name, rest, words = match.groups()
        page = sources[0].parent / f"{name}.md"
        if not page.exists():
            sys.exit(f"pages: {match[0]} leads nowhere")
        # Who reads the pages does not know the names of their files.
        shown = html.escape(title(page.read_text())) if words == f"{name}.md" else words
        return f'<a href="{name}.html{rest}">{shown}</a>' if name in texts else shown

    folder.mkdir(parents=True, exist_ok=True)
    for name, text in texts.items():
        menu = " · ".join(html.escape(title(other)) if other is text else
                          f'<a href="{page}.html">{html.escape(title(other))}</a>'
                          for page, other in texts.items())
        page = FRAME.format(title=html.escape(title(text)), menu=menu,
                            body=re.sub(r'<a href="([\w-]+)\.md([^"]*)">(.*?)</a>', link, body(text)))
        (folder / f"{name}.html").write_text(page, encoding="utf-8", newline="\r\n")

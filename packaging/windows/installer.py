"""Installers (MSI) from the folder that the ZIP packs, for all users and for one, by Debian's wixl."""
import pathlib
import re
import subprocess
import uuid
import xml.etree.ElementTree as xml

root = pathlib.Path(__file__).resolve().parent.parent.parent

# What one installation recognizes another by, whatever its version, word length and user. It never
# changes.
UPGRADE_CODE = uuid.UUID("0b6d5b0e-4d0c-4b52-9d3c-6c7f3e7a5d41")

# The word lengths that a Windows of each architecture runs, its own first.
ARCHITECTURES = {"x64": ["64-bit", "32-bit"], "x86": ["32-bit"]}
# Who has the program: the name's ending, the registry's root and the folder to install in.
SCOPES = {"perMachine": ("", "HKLM", {"x64": "ProgramFiles64Folder", "x86": "ProgramFilesFolder"}),
          "perUser": ("-user", "HKCU", dict.fromkeys(ARCHITECTURES, "LocalAppDataFolder"))}

# Who takes the ZIP registers by these, which the installer does itself.
ONLY_IN_THE_ZIP = {"register.cmd", "unregister.cmd", "readme.txt"}

SHORTCUTS = [  # name, target, arguments
    ("Calvex guide", "[#{windows.html}]", ""),
    ("Calvex examples", "[{examples}]", ""),
    ("Calvex command line", "[{system}]cmd.exe", '/k ""[#{calvex.exe}]" --help"'),
]


def identity():
    """What names the server to the world."""
    header = (root / "src/server/identity.h").read_text()
    return dict(re.findall(r"\b(\w+) = \"?([^\";]+)\"?;", header))


def registration(bits, all_of_it):
    """Rows of the registry below Software\\Classes: key, name (none for a key's own value), value. Some
    keys hold for both word lengths: those come with all of it."""
    names = identity()
    program, any_version = names["programId"], names["versionIndependentProgramId"]
    described = names["className"]
    clsid, interface, library = (f"{{{names[name].upper()}}}"
                                 for name in ("classId", "interfaceId", "typeLibraryId"))
    version = f"{int(names['typeLibraryVersion']):x}.0"
    server = f"[#{file_id(bits + '/calvex.dll')}]"
    class_key, interface_key = f"CLSID\\{clsid}", f"Interface\\{interface}"
    library_key = f"TypeLib\\{library}\\{version}"
    rows = [
        (class_key, None, described),
        (f"{class_key}\\ProgID", None, program),
        (f"{class_key}\\VersionIndependentProgID", None, any_version),
        (f"{class_key}\\Programmable", None, ""),
        (f"{class_key}\\InprocServer32", None, server),
        (f"{class_key}\\InprocServer32", "ThreadingModel", "Apartment"),
        (interface_key, None, "IZvCalvex"),
        # The system's own marshaller, which works from the type library.
        (f"{interface_key}\\ProxyStubClsid32", None, "{00020424-0000-0000-C000-000000000046}"),
        (f"{interface_key}\\TypeLib", None, library),
        (f"{interface_key}\\TypeLib", "Version", version),
        (f"{library_key}\\0\\win{bits[:2]}", None, server),
    ]
    if all_of_it:
        rows += [
            (program, None, described),
            (f"{program}\\CLSID", None, clsid),
            (any_version, None, described),
            (f"{any_version}\\CLSID", None, clsid),
            (f"{any_version}\\CurVer", None, program),
            (library_key, None, "Calvex 4 Type Library"),
            (f"{library_key}\\FLAGS", None, "0"),
            (f"{library_key}\\HELPDIR", None, f"[{directory_id(bits)}]"),
        ]
    return rows


def name_id(kind, path):
    return f"{kind}_{re.sub(r'[^A-Za-z0-9_.]', '_', str(path))}"


def file_id(path):
    return name_id("file", path)


def directory_id(path):
    return name_id("folder", path) if str(path) != "." else "INSTALLDIR"


class Package:
    """The description of one installer, as wixl reads it."""

    def __init__(self, folder, version, architecture, scope):
        self.folder, self.version = folder, version
        self.architecture, self.scope = architecture, scope
        self.ending, self.hive, places = SCOPES[scope]
        self.place = places[architecture]
        self.bits = ARCHITECTURES[architecture]
        self.product = self.code("product", version)
        self.components = []

    def code(self, *names):
        """The same for the same names, in every build."""
        return str(uuid.uuid5(UPGRADE_CODE, " ".join((self.architecture, self.scope, *names)))).upper()

    def file_name(self):
        return f"calvex-{self.version}-{self.architecture}{self.ending}.msi"

    def files(self):
        others = {"64-bit", "32-bit"} - set(self.bits)
        for path in sorted(self.folder.rglob("*")):
            inside = path.relative_to(self.folder)
            if path.is_file() and inside.name not in ONLY_IN_THE_ZIP and inside.parts[0] not in others:
                yield inside

    def component(self, parent, path):
        identifier = name_id("component", path)
        self.components.append(identifier)
        bits = path.parts[0]
        # A 32-bit component goes to the 32-bit half of the machine's registry by itself. Of the user's
        # part only the classes have one, which is told by its name.
        narrow = self.architecture == "x86" or (bits == "32-bit" and self.scope == "perMachine")
        half = "Wow6432Node\\" if bits == "32-bit" and not narrow else ""
        element = xml.SubElement(parent, "Component", Id=identifier, Guid=self.code(str(path)),
                                 Win64="no" if narrow else "yes")
        xml.SubElement(element, "File", Id=file_id(path), KeyPath="yes",
                       Source=f"{self.folder.name}/{path}", Name=path.name)
        if path == pathlib.PurePath(self.bits[0], "calvex.exe"):
            xml.SubElement(element, "RegistryValue", Root=self.hive, Key="Software\\Calvex", Name="Folder",
                           Type="string", Value="[INSTALLDIR]")
        if path.name == "calvex.dll":
            for key, name, value in registration(bits, bits == self.bits[0]):
                if re.match(r"(CLSID|Interface)\\", key):
                    key = half + key
                row = xml.SubElement(element, "RegistryValue", Root=self.hive, Type="string",
                                     Key=f"Software\\Classes\\{key}", Value=value)
                if name:
                    row.set("Name", name)

    def shortcuts(self, menu):
        own = self.bits[0]
        known = {"windows.html": file_id("docs/windows.html"), "examples": directory_id("examples"),
                 "calvex.exe": file_id(f"{own}/calvex.exe"),
                 "system": "System64Folder" if self.architecture == "x64" else "SystemFolder"}
        parent = xml.SubElement(menu, "Component", Id="shortcuts", Guid=self.code("shortcuts"),
                                Win64="no" if self.architecture == "x86" else "yes")
        self.components.append("shortcuts")
        # A folder of the user's has no file to be known by.
        xml.SubElement(parent, "RegistryValue", Root="HKCU", Key="Software\\Calvex", Type="string",
                       Name="Menu", Value="[ProductVersion]", KeyPath="yes")
        for name, target, arguments in SHORTCUTS:
            def fill(text):
                return re.sub(r"\{([^}]+)\}", lambda m: known[m[1]], text)
            element = xml.SubElement(parent, "Shortcut", Id=name_id("shortcut", name), Name=name,
                                     Target=fill(target), WorkingDirectory="INSTALLDIR")
            if arguments:
                element.set("Arguments", fill(arguments))
        xml.SubElement(parent, "RemoveFolder", Id="menu", On="uninstall")

    def description(self):
        wix = xml.Element("Wix", xmlns="http://schemas.microsoft.com/wix/2006/wi")
        product = xml.SubElement(wix, "Product", Id=self.product, Name="Calvex",
                                 UpgradeCode=str(UPGRADE_CODE).upper(), Language="1033",
                                 Version=self.version, Manufacturer="The Calvex developers")
        xml.SubElement(product, "Package", InstallerVersion="200", Compressed="yes",
                       InstallScope=self.scope, Description=f"Calvex {self.version}",
                       Comments="Properties of water and steam, and the equipment of steam systems",
                       Manufacturer="The Calvex developers")
        xml.SubElement(product, "Media", Id="1", Cabinet="calvex.cab", EmbedCab="yes")
        xml.SubElement(product, "MajorUpgrade", DowngradeErrorMessage=
                       "A newer Calvex is installed. Remove it first to go back to this one.")
        condition = xml.SubElement(product, "Condition", Message="Calvex needs Windows 7 or later.")
        condition.text = "Installed OR VersionNT >= 601"
        if self.architecture == "x86":  # it would take the 64-bit parts away without a word
            condition = xml.SubElement(
                product, "Condition", Message="This is a 64-bit Windows. Take the x64 package: it serves "
                "32-bit programs, too. (ONLY32BIT=1 installs this one all the same.)")
            condition.text = "Installed OR NOT VersionNT64 OR ONLY32BIT"
        if self.scope == "perUser":  # its registry is one user's
            condition = xml.SubElement(
                product, "Condition", Message="This package installs for one user. ALLUSERS=1 belongs to "
                f"the one for all users, {self.file_name().replace(self.ending, '')}.")
            condition.text = "Installed OR NOT ALLUSERS"
        # A place of the user's own is kept by repairs, by upgrades and by the removal.
        before = xml.SubElement(product, "Property", Id="INSTALLEDDIR")
        xml.SubElement(before, "RegistrySearch", Id="installed", Root=self.hive, Key="Software\\Calvex",
                       Name="Folder", Type="raw", Win64="yes" if self.architecture == "x64" else "no")
        for name, value in (("ARPNOMODIFY", "1"), ("ARPCOMMENTS", "Properties of water and steam")):
            xml.SubElement(product, "Property", Id=name, Value=value)

        top = xml.SubElement(product, "Directory", Id="TARGETDIR", Name="SourceDir")
        place = xml.SubElement(top, "Directory", Id=self.place)
        if self.scope == "perUser":
            place = xml.SubElement(place, "Directory", Id="programs", Name="Programs")
        programs = xml.SubElement(top, "Directory", Id="ProgramMenuFolder")
        self.shortcuts(xml.SubElement(programs, "Directory", Id="menu", Name="Calvex"))
        folders = {pathlib.PurePath("."): xml.SubElement(place, "Directory", Id="INSTALLDIR",
                                                         Name="Calvex")}

        def folder(path):
            if path not in folders:
                folders[path] = xml.SubElement(folder(path.parent), "Directory",
                                               Id=directory_id(path), Name=path.name)
            return folders[path]

        for path in self.files():
            self.component(folder(path.parent), path)
        feature = xml.SubElement(product, "Feature", Id="Calvex", Title="Calvex", Level="1")
        for identifier in self.components:
            xml.SubElement(feature, "ComponentRef", Id=identifier)
        return xml.ElementTree(wix)

    def changes(self):
        """What wixl has no words for. The same version of another word length is replaced, too (512: up
        to this one and it): they share their names. The command line is found by its name: "=" creates,
        "-" takes away with the component, "*" means the machine's, "[~]" stands for what there is. An action
        of type 51 sets a property."""
        machine = "*" if self.scope == "perMachine" else ""
        own = self.bits[0]
        return [
            "DELETE FROM `Upgrade` WHERE `ActionProperty` = 'WIX_UPGRADE_DETECTED'",
            "INSERT INTO `Upgrade` (`UpgradeCode`, `VersionMin`, `VersionMax`, `Attributes`, "
            f"`ActionProperty`) VALUES ('{{{str(UPGRADE_CODE).upper()}}}', '', '{self.version}', 513, "
            "'WIX_UPGRADE_DETECTED')",
            "CREATE TABLE `Environment` (`Environment` CHAR(72) NOT NULL, `Name` CHAR(255) NOT NULL "
            "LOCALIZABLE, `Value` CHAR(255) LOCALIZABLE, `Component_` CHAR(72) NOT NULL "
            "PRIMARY KEY `Environment`)",
            "INSERT INTO `Environment` (`Environment`, `Name`, `Value`, `Component_`) VALUES ('path', "
            f"'=-{machine}PATH', '[~];[{directory_id(own)}]', "
            f"'{name_id('component', own + '/calvex.exe')}')",
            "UPDATE `Property` SET `Value` = 'WIX_DOWNGRADE_DETECTED;WIX_UPGRADE_DETECTED;INSTALLDIR' "
            "WHERE `Property` = 'SecureCustomProperties'",
            *("INSERT INTO `CustomAction` (`Action`, `Type`, `Source`, `Target`) VALUES "
              f"('{action}', 51, '{name}', '[{value}]')"
              for action, name, value in (("StayThere", "INSTALLDIR", "INSTALLEDDIR"),
                                          ("TellThePlace", "ARPINSTALLLOCATION", "INSTALLDIR"))),
            *(f"INSERT INTO `Install{sequence}Sequence` (`Action`, `Condition`, `Sequence`) VALUES "
              f"('{action}', '{condition}', {place})"
              for sequence, action, condition, place in (
                  ("UI", "StayThere", "INSTALLEDDIR AND NOT INSTALLDIR", 60),
                  ("Execute", "StayThere", "INSTALLEDDIR AND NOT INSTALLDIR", 60),
                  ("Execute", "TellThePlace", "", 1010),
                  ("Execute", "RemoveEnvironmentStrings", "", 3300),
                  ("Execute", "WriteEnvironmentStrings", "", 5200))),
        ]

    def make(self, target):
        """Writes it into that folder; answers its path."""
        path = target / self.file_name()
        path.unlink(missing_ok=True)
        source = self.folder.parent / f"{path.stem}.wxs"
        self.description().write(source, encoding="utf-8", xml_declaration=True)
        subprocess.run(["wixl", "--arch", self.architecture, "-o", path, source.name],
                       cwd=source.parent, check=True)
        queries = (text for query in self.changes() for text in ("-q", query))
        subprocess.run(["msibuild", path, *queries], check=True)
        return path

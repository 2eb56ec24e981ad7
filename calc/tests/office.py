"""The real program, headless, with a profile of its own, driven over a socket."""
import contextlib
import os
import pathlib
import shutil
import socket
import subprocess
import tempfile
import time

import uno
from com.sun.star.beans import PropertyValue
from com.sun.star.connection import NoConnectException


def properties(**values):
    return tuple(PropertyValue(name, 0, value, 0) for name, value in values.items())


# unopkg refuses root, whom a continuous integration mostly is: the office runs as nobody then.
USER = {"user": "nobody", "group": "nogroup", "extra_groups": []} if os.geteuid() == 0 else {}


@contextlib.contextmanager
def temporary_folder():
    """One that the office may write to."""
    with tempfile.TemporaryDirectory() as folder:
        if USER:
            shutil.chown(folder, USER["user"])
        yield pathlib.Path(folder)


class Office:
    """A running office; `extension` is installed into its profile before the first start."""

    def __init__(self, folder, extension=None, display=None):
        folder = pathlib.Path(folder)
        self.profile = folder / "profile"
        self.environment = dict(os.environ, HOME=str(folder), SAL_USE_VCLPLUGIN="svp")
        if display:
            self.environment.update(DISPLAY=display, SAL_USE_VCLPLUGIN="gen")
        self.profile_argument = f"-env:UserInstallation={self.profile.as_uri()}"
        if extension:
            copy = shutil.copy(extension, folder)
            subprocess.run(["unopkg", "add", "--suppress-license", self.profile_argument, copy],
                           check=True, env=self.environment, cwd=folder, **USER)
        with socket.socket() as free:
            free.bind(("localhost", 0))
            self.connection = f"socket,host=localhost,port={free.getsockname()[1]};urp;"
        self.process = None
        self.headless = [] if display else ["--headless"]

    def __enter__(self):
        self.process = subprocess.Popen(
            ["soffice", *self.headless, "--norestore", "--nologo", "--nodefault", "--nofirststartwizard",
             self.profile_argument, f"--accept={self.connection}"],
            env=self.environment, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
            cwd=self.profile.parent, **USER)
        local = uno.getComponentContext()
        resolver = local.ServiceManager.createInstanceWithContext(
            "com.sun.star.bridge.UnoUrlResolver", local)
        deadline = time.monotonic() + 60
        while True:
            try:
                self.context = resolver.resolve(
                    f"uno:{self.connection}StarOffice.ComponentContext")
                break
            except NoConnectException:
                if time.monotonic() > deadline or self.process.poll() not in (None, 81):
                    raise
                time.sleep(0.05)
        self.desktop = self.create("com.sun.star.frame.Desktop")
        return self

    def __exit__(self, *_):
        with contextlib.suppress(Exception):
            self.desktop.terminate()
        try:
            self.process.wait(30)
        except subprocess.TimeoutExpired:
            self.process.kill()
            self.process.wait()

    def create(self, service):
        return self.context.ServiceManager.createInstanceWithContext(service, self.context)

    def new(self, hidden=True):
        return self.desktop.loadComponentFromURL("private:factory/scalc", "_blank", 0,
                                                 properties(Hidden=hidden))

    def open(self, path, hidden=True):
        return self.desktop.loadComponentFromURL(pathlib.Path(path).as_uri(), "_blank", 0,
                                                 properties(Hidden=hidden))


FILTERS = {".ods": "calc8", ".xlsx": "Calc MS Excel 2007 XML"}


def save(document, path):
    path = pathlib.Path(path)
    document.storeToURL(path.as_uri(), properties(FilterName=FILTERS[path.suffix]))


def until(condition, seconds=10):
    """What the office does in its own time."""
    deadline = time.monotonic() + seconds
    while not condition():
        if time.monotonic() > deadline:
            return False
        time.sleep(0.02)
    return True

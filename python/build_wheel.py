"""Builds the wheel of the Python package, for pip: python/CMakeLists.txt installed into a folder,
zipped. Needs no package but what the project is built with.

    pip install .
    pip install . --config-settings build-dir=build/release    # a build that is there already
"""
import base64
import hashlib
import os
import pathlib
import re
import shutil
import subprocess
import sys
import sysconfig
import tarfile
import tempfile
import zipfile

ROOT = pathlib.Path(__file__).resolve().parent.parent


def _version():
    return re.search(r"^project\(calvex VERSION ([0-9.]+)", (ROOT / "CMakeLists.txt").read_text(),
                     re.MULTILINE)[1]


def _metadata():
    return f"""Metadata-Version: 2.1
Name: calvex
Version: {_version()}
Summary: Properties of water and steam in any unit of measure
License: MIT
Requires-Python: >=3.11
Requires-Dist: numpy >=1.24, <2
Provides-Extra: plot
Requires-Dist: matplotlib; extra == "plot"
Description-Content-Type: text/markdown

""" + (ROOT / "docs/python.md").read_text()


def _tag():
    python = f"cp{sys.version_info[0]}{sys.version_info[1]}"
    return f"{python}-{python}-{re.sub('[-.]', '_', sysconfig.get_platform())}"


def _write_info(folder):
    info = pathlib.Path(folder) / f"calvex-{_version()}.dist-info"
    info.mkdir(parents=True)
    (info / "METADATA").write_text(_metadata())
    (info / "WHEEL").write_text("Wheel-Version: 1.0\nGenerator: calvex\nRoot-Is-Purelib: false\n"
                                f"Tag: {_tag()}\n")
    for name in ("LICENSE", "THIRD-PARTY-NOTICES.md"):
        shutil.copy(ROOT / name, info)
    return info


# pip hides all packages from a build by PYTHONPATH; NumPy's headers are wanted all the same.
_ENVIRONMENT = {name: value for name, value in os.environ.items() if name != "PYTHONPATH"}


def _run(*command):
    subprocess.run([str(word) for word in command], check=True, stdout=sys.stderr, env=_ENVIRONMENT)


def _build(build, stage):
    if subprocess.run([sys.executable, "-c", "import numpy"], env=_ENVIRONMENT,
                      stderr=subprocess.DEVNULL).returncode != 0:
        raise SystemExit("calvex is built against NumPy, which this Python does not have: apt install "
                         "python3-numpy, and an environment that sees it (python3 -m venv "
                         "--system-site-packages), or pip install 'numpy<2' first")
    cmake = shutil.which("cmake")
    if cmake is None:
        raise SystemExit("calvex is built with cmake, ninja and a C++20 compiler: as root, "
                         "scripts/install-packages run")
    if not (build / "CMakeCache.txt").exists():
        generator = ["-G", "Ninja"] if shutil.which("ninja") else []
        _run(cmake, *generator, "-S", ROOT, "-B", build, "-DCMAKE_BUILD_TYPE=Release",
             "-DCALVEX_PYTHON=ON", "-DCALVEX_APPS=OFF", "-DCALVEX_TESTS=OFF",
             "-DCALVEX_BENCHMARKS=OFF",
             f"-DPython3_EXECUTABLE={sys.executable}")
    _run(cmake, "--build", build, "--target", "calvex_python", "-j", os.cpu_count() or 2)
    _run(cmake, "--install", build, "--prefix", stage, "--component", "python", "--strip")
    return next(stage.rglob("calvex/__init__.py")).parent.parent


def _zip(stage, wheel):
    """All files, the record of them last."""
    files = sorted(path for path in stage.rglob("*") if path.is_file())
    record = next(stage.glob("*.dist-info")) / "RECORD"
    lines = []
    with zipfile.ZipFile(wheel, "w", zipfile.ZIP_DEFLATED) as archive:
        for path in files:
            name, content = path.relative_to(stage).as_posix(), path.read_bytes()
            digest = base64.urlsafe_b64encode(hashlib.sha256(content).digest()).rstrip(b"=").decode()
            lines.append(f"{name},sha256={digest},{len(content)}")
            archive.write(path, name)
        name = record.relative_to(stage).as_posix()
        archive.writestr(name, "\n".join([*lines, f"{name},,"]) + "\n")


def get_requires_for_build_wheel(config_settings=None):
    return []


def prepare_metadata_for_build_wheel(metadata_directory, config_settings=None):
    return _write_info(metadata_directory).name


def build_wheel(wheel_directory, config_settings=None, metadata_directory=None):
    wheel = f"calvex-{_version()}-{_tag()}.whl"
    with tempfile.TemporaryDirectory() as folder:
        given = (config_settings or {}).get("build-dir")
        build = pathlib.Path(given).resolve() if given else pathlib.Path(folder) / "build"
        stage = _build(build, pathlib.Path(folder) / "stage")
        _write_info(stage)
        _zip(stage, pathlib.Path(wheel_directory) / wheel)
    return wheel


def build_sdist(sdist_directory, config_settings=None):
    name = f"calvex-{_version()}"
    files = subprocess.run(["git", "ls-files"], cwd=ROOT, check=True, capture_output=True,
                           text=True).stdout.split("\n")
    with tarfile.open(pathlib.Path(sdist_directory) / f"{name}.tar.gz", "w:gz") as archive:
        for file in filter(None, files):
            archive.add(ROOT / file, f"{name}/{file}")
    return f"{name}.tar.gz"

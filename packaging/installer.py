"""Makes one architecture's installer: installer.py FOLDER ARCHITECTURE ROWS

FOLDER holds what tools/dist has packed; the installer comes out in its dist/. ROWS is the file that registryrows
wrote, with the installer's words for paths in it: [#quilbt.ocx] and [SHAREDDIR]. So the installer writes the registry
itself, from the component's own table, and runs none of the component's code."""
import datetime
import hashlib
import os
import pathlib
import shutil
import struct
import subprocess
import sys
import uuid
from xml.sax.saxutils import quoteattr

import archive

ROOT = pathlib.Path(__file__).resolve().parent.parent
FAMILY = uuid.UUID("e2c5a0a1-6f0a-4b7e-9a59-3d7f0e2b1c44")  # all identifiers of installers come from it

OWN_FILES = ["quilbt.ocx", "quilbt.manifest", "LICENSE.txt", "THIRD-PARTY.txt"]
SHORT_NAMES = {"quilbt.manifest": "QUILBT.MAN", "THIRD-PARTY.txt": "THIRDPTY.TXT"}  # of what is no 8.3 name

DOCUMENT = """<?xml version="1.0" encoding="utf-8"?>
<Wix xmlns="http://schemas.microsoft.com/wix/2006/wi">
  <Product Id="{product}" Name="Quillet ({bits}-bit)" Language="1033" Version="{version}"
           Manufacturer="The Quillet authors" UpgradeCode="{family}">
    <Package InstallerVersion="500" Compressed="yes" Description="Quillet flat buttons, {bits}-bit"
             Manufacturer="The Quillet authors"/>
    <Media Id="1" Cabinet="quillet.cab" EmbedCab="yes"/>
    <!-- For the machine; with MSIINSTALLPERUSER=1 on the command line for the user. -->
    <Property Id="ALLUSERS" Value="2"/>
    <Property Id="ARPCOMMENTS" Value="Flat buttons for forms, as ActiveX controls"/>
    <MajorUpgrade DowngradeErrorMessage="A newer version of Quillet is installed. Remove it first, then install this one."/>
    <Condition Message="Quillet needs Windows 7 or later.">Installed OR VersionNT &gt;= 601</Condition>
    <Property Id="REGISTEREDCOPY">
      <RegistrySearch Id="registeredcopy" Root="HKCR" Key="{class_key}" Name="" Type="file" Win64="{is64}"/>
    </Property>
    <Condition Message="Quillet is registered already, from [REGISTEREDCOPY]. Take that back first (uninstall.cmd beside it, or regsvr32 /u), then install again.">Installed OR WIX_UPGRADE_DETECTED OR WIX_DOWNGRADE_DETECTED OR NOT REGISTEREDCOPY</Condition>
{wine_search}
    <Directory Id="TARGETDIR" Name="SourceDir">
      <Directory Id="{programs}">
        <Directory Id="INSTALLDIR" Name="Quillet">
          <Component Id="own" Guid="{own}" Win64="{is64}">
{own_files}
{own_rows}
          </Component>
{names_component}
        </Directory>
      </Directory>
      <Directory Id="CommonFilesFolder">
        <Directory Id="SHAREDDIR" Name="Quillet">
          <!-- Both architectures' installers have this component: it goes with the last of them. -->
          <Component Id="shared" Guid="{shared}" Win64="no">
{shared_files}
{shared_rows}
          </Component>
        </Directory>
      </Directory>
    </Directory>
    <Feature Id="Quillet" Title="Quillet" Level="1" Absent="disallow">
      <ComponentRef Id="own"/>
      <ComponentRef Id="shared"/>
{names_reference}
    </Feature>
  </Product>
</Wix>
"""

# Windows shares the classes' names between the architectures, and so the shared component holds them. Wine does not:
# there the 64-bit installer writes them for 64-bit programs, too.
WINE_SEARCH = """    <Property Id="WINE">
      <RegistrySearch Id="wine" Root="HKLM" Key="Software\\Wine\\LicenseInformation"
                      Name="Kernel-MUI-Language-Allowed" Type="raw" Win64="yes"/>
    </Property>"""
NAMES_COMPONENT = """          <Component Id="names" Guid="{names}" Win64="yes">
{rows}
          </Component>"""
NAMES_REFERENCE = """      <ComponentRef Id="names"/>"""


def identifier(name):
    return str(uuid.uuid5(FAMILY, name)).upper()


def rows_of(path):
    """Lists of key, name and text; of a key that says something by being there, the key alone."""
    return [line.split("\t") for line in path.read_text(encoding="ascii").splitlines()]


def is_own(key):
    """Windows keeps classes and interfaces of the two architectures apart, and shares everything else."""
    return key.startswith(("CLSID\\", "Interface\\")) or key.endswith(("\\win32", "\\win64"))


def registry_value(name_of_row, row):
    key, name, text = row if len(row) == 3 else (row[0], "*", "")  # *: made, and removed again, with the component
    words = {"Id": name_of_row, "Root": "HKCR", "Key": key, "Name": name, "Type": "string", "Value": text}
    if not name:
        del words["Name"]
    return "            <RegistryValue " + " ".join(f"{word}={quoteattr(value)}" for word, value in words.items()) + "/>"


def values(named_rows):
    return "\n".join(registry_value(*each) for each in named_rows)


def file_element(name, is_key=False):
    mark = ' KeyPath="yes"' if is_key else ""
    short = SHORT_NAMES.get(name)
    shown = f"{short}|{name}" if short else name
    return f'            <File Id="{name}" Name="{shown}" Source="{name}" DiskId="1"{mark}/>'


def document(arch, version, rows):
    numbered = [(f"row{number}", row) for number, row in enumerate(rows, 1)]
    names = [(f"name{number}", row) for number, row in enumerate(rows, 1) if row[0].startswith("Quillet.")]
    for_wine = arch == "x64"
    class_key = next(row[0] for row in rows if row[0].endswith("\\InprocServer32"))
    return DOCUMENT.format(
        product=identifier(f"product {arch} {version}"),
        family=identifier(f"family {arch}"),
        own=identifier(f"own {arch}"),
        shared=identifier("shared"),
        version=version,
        bits="64" if arch == "x64" else "32",
        is64="yes" if arch == "x64" else "no",
        programs="ProgramFiles64Folder" if arch == "x64" else "ProgramFilesFolder",
        class_key=class_key,
        own_files="\n".join(file_element(name, name == "quilbt.ocx") for name in OWN_FILES),
        own_rows=values(row for row in numbered if is_own(row[1][0])),
        shared_files=file_element("quillet.chm", True),
        shared_rows=values(row for row in numbered if not is_own(row[1][0])),
        wine_search=WINE_SEARCH if for_wine else "",
        names_component=NAMES_COMPONENT.format(names=identifier("names"), rows=values(names)) if for_wine else "",
        names_reference=NAMES_REFERENCE if for_wine else "",
    )


def stage(folder, product, arch):
    """The files to install, all of one time: it stands in the cabinet."""
    shutil.rmtree(folder, ignore_errors=True)
    folder.mkdir(parents=True)
    time = archive.TIME.timestamp()
    sources = archive.read(product / f"dist/quillet-{version([])}.zip")
    for name in OWN_FILES + ["quillet.chm"]:
        target = folder / name
        target.write_bytes(sources.get(f"{arch}/{name}") or sources[name])
        os.utime(target, (time, time))


def without_time(path):
    """The summary of an installer holds the time and a random identifier: equal contents make equal files."""
    data = bytearray(path.read_bytes())
    section = data.index(uuid.UUID("f29f85e0-4ff9-1068-ab91-08002b27b3d9").bytes_le)
    start = data.index(struct.pack("<I", struct.unpack_from("<I", data, section + 16)[0]), section + 16)
    base = section - 28 + struct.unpack_from("<I", data, start)[0]
    count = struct.unpack_from("<I", data, base + 4)[0]
    properties = dict(struct.unpack_from("<II", data, base + 8 + 8 * each) for each in range(count))
    epoch = datetime.datetime(1601, 1, 1, tzinfo=datetime.timezone.utc)
    filetime = int((archive.TIME - epoch).total_seconds()) * 10_000_000
    for created_or_saved in (12, 13):
        struct.pack_into("<Q", data, base + properties[created_or_saved] + 4, filetime)
    revision = base + properties[9] + 8  # behind its type and its length
    data[revision : revision + 38] = b"{" + b"0" * 36 + b"}"
    package = uuid.uuid5(FAMILY, hashlib.sha256(data).hexdigest())
    data[revision : revision + 38] = b"{" + str(package).upper().encode() + b"}"
    path.write_bytes(data)


def compile_installer(folder, target, arch):
    words = ["wixl", "--arch", arch, "--output", str(target.resolve()), "quillet.wxs"]
    done = subprocess.run(words, cwd=folder, env=os.environ | {"TZ": "UTC"}, capture_output=True, text=True)
    if done.returncode or done.stderr:
        sys.exit(f"msi: wixl did not like what it was given\n{done.stderr}")


def amend(target, file_version):
    """What wixl cannot say: the component is a file with a version, which newer ones replace and older ones do not;
    and the copy that is looked for in the registry is a file of this name. A component has a condition."""
    queries = [
        f"UPDATE `File` SET `Version`='{file_version}', `Language`='1033' WHERE `File`='quilbt.ocx'",
        "DELETE FROM `MsiFileHash` WHERE `File_`='quilbt.ocx'",
        "INSERT INTO `Signature` (`Signature`, `FileName`) VALUES ('registeredcopy', 'quilbt.ocx')",
        "UPDATE `Component` SET `Condition`='WINE' WHERE `Component`='names'",
    ]
    for query in queries:
        subprocess.run(["msibuild", str(target), "-q", query], check=True)


def version(form):
    return subprocess.run([ROOT / "tools/version", *form], capture_output=True, text=True, check=True).stdout.strip()


def main(product, arch, rows):
    target = product / f"dist/quillet-{version([])}-{arch}.msi"
    folder = ROOT / f"build/installer/{arch}"
    stage(folder, product, arch)
    (folder / "quillet.wxs").write_text(document(arch, version(["--installer"]), rows_of(rows)), encoding="utf-8")
    target.unlink(missing_ok=True)
    compile_installer(folder, target, arch)
    amend(target, version(["--file"]))
    without_time(target)
    print(f"msi: {target}, {target.stat().st_size // 1024} KiB")


main(pathlib.Path(sys.argv[1]), sys.argv[2], pathlib.Path(sys.argv[3]))

"""The list of what is shipped and under which terms, in the tag form of SPDX 2.3."""
import hashlib
import re

import archive

HEAD = """SPDXVersion: SPDX-2.3
DataLicense: CC0-1.0
SPDXID: SPDXRef-DOCUMENT
DocumentName: quillet-{version}
DocumentNamespace: https://spdx.org/spdxdocs/quillet-{version}-{contents}
Creator: Organization: The Quillet authors
Created: {time}

PackageName: Quillet
SPDXID: SPDXRef-Quillet
PackageVersion: {version}
PackageSupplier: Organization: The Quillet authors
PackageDownloadLocation: NOASSERTION
PackageVerificationCode: {contents} (excludes: ./quillet.spdx, ./SHA256SUMS)
PackageLicenseConcluded: MIT
PackageLicenseDeclared: MIT
PackageCopyrightText: <text>Copyright (c) 2026 The Quillet authors</text>
Relationship: SPDXRef-DOCUMENT DESCRIBES SPDXRef-Quillet
"""

FILE = """
FileName: ./{name}
SPDXID: SPDXRef-File-{identifier}
FileChecksum: SHA1: {sha1}
FileChecksum: SHA256: {sha256}
LicenseConcluded: {licence}
LicenseInfoInFile: NOASSERTION
FileCopyrightText: NOASSERTION
"""

LINKED = """
PackageName: {name}
SPDXID: SPDXRef-{identifier}
PackageVersion: {version}
PackageSupplier: Organization: Debian
PackageDownloadLocation: NOASSERTION
FilesAnalyzed: false
PackageLicenseConcluded: {licence}
PackageLicenseDeclared: {licence}
PackageCopyrightText: NOASSERTION
Relationship: SPDXRef-Quillet STATIC_LINK SPDXRef-{identifier}
"""

OTHER_LICENCE = """
LicenseID: LicenseRef-mingw-w64
LicenseName: the notices of mingw-w64's parts
ExtractedText: <text>See THIRD-PARTY.txt.</text>
"""


def document(version, files, linked):
    """The list as text: files as bytes by their names, linked as third_party.linked gives it."""
    sums = {name: hashlib.sha1(data).hexdigest() for name, data in files.items()}
    contents = hashlib.sha1("".join(sorted(sums.values())).encode()).hexdigest()
    parts = [HEAD.format(version=version, contents=contents, time=archive.TIME.strftime("%Y-%m-%dT%H:%M:%SZ"))]
    for number, (name, data) in enumerate(sorted(files.items()), 1):
        parts.append(
            FILE.format(
                name=name,
                identifier=f"{number}-{re.sub(r'[^A-Za-z0-9.]', '-', name)}",
                sha1=sums[name],
                sha256=hashlib.sha256(data).hexdigest(),
                licence="NOASSERTION" if name == "THIRD-PARTY.txt" else "MIT",
            )
        )
    for name, identifier, licence, package_version, _ in linked:
        parts.append(LINKED.format(name=name, identifier=identifier, version=package_version, licence=licence))
    parts.append(OTHER_LICENCE)
    return "".join(parts)

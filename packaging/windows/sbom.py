#!/usr/bin/env python3
"""The software bill of materials of the Windows program, as CycloneDX 1.5, with the state of the known advisories.

    sbom.py PROGRAM QT VERSION PUBLISHER COMMIT TIME      TIME in seconds since 1970

The same input gives the same bytes. PROGRAM is the linked program, QT the directory that build-qt prints.
"""

import hashlib
import json
import re
import subprocess
import sys
import uuid
from datetime import datetime, timezone
from pathlib import Path

HERE = Path(__file__).parent

# The parts of others in Qt that are compiled into the program, by their names in Qt's descriptions. Parts for other
# systems, for modules that are not built, and what only serves the build are not among them. Of a library that may be
# left out, `trace` is something that is in every program it is linked into.
PARTS = {
    # Qt Core
    "blake2": {},
    "doubleconversion": {"purl": "pkg:github/google/double-conversion@v3.2.0"},
    "easing": {},
    "md4": {},
    "md5": {},
    "pcre2": {
        "purl": "pkg:github/PCRE2Project/pcre2@pcre2-{version}",
        "cpe": "cpe:2.3:a:pcre:pcre2:{version}",
    },
    "pcre2-sljit": {},
    "rfc6234": {},
    "sha1": {},
    "sha3_endian": {},
    "sha3_keccak": {},
    "siphash": {},
    "tinycbor": {"purl": "pkg:github/intel/tinycbor@v{version}"},
    "unicode-character-database": {},
    "unicode-cldr": {},
    "zlib": {"purl": "pkg:github/madler/zlib@v{version}", "cpe": "cpe:2.3:a:zlib:zlib:{version}"},
    # Qt Gui
    "aglfn": {},
    "freetype": {"purl": "pkg:generic/freetype@{version}", "cpe": "cpe:2.3:a:freetype:freetype:{version}"},
    "freetype-bdf": {},
    "freetype-pcf": {},
    "freetype-zlib": {},
    "grayraster": {},
    "harfbuzz-ng": {
        "purl": "pkg:github/harfbuzz/harfbuzz@{version}",
        "cpe": "cpe:2.3:a:harfbuzz_project:harfbuzz:{version}",
    },
    "icc-sRGB-color-profile": {},
    "libpng": {"purl": "pkg:generic/libpng@{version}", "cpe": "cpe:2.3:a:libpng:libpng:{version}"},
    "md4c": {"purl": "pkg:github/mity/md4c@release-{version}"},
    "opengl-headers": {},
    "smooth-scaling-algorithm": {},
    "webgradients": {},
    "xserverhelper": {},
    # Plugins of Qt Gui
    "libjpeg": {
        "purl": "pkg:github/libjpeg-turbo/libjpeg-turbo@{version}",
        "cpe": "cpe:2.3:a:libjpeg-turbo:libjpeg-turbo:{version}",
        "trace": b"libjpeg-turbo version",
    },
}

# Where Qt's descriptions do not use the identifiers of SPDX.
LICENCES = {
    "FTL OR GPL-2.0": "FTL OR GPL-2.0-only",
    "FTL or GPL-2.0": "FTL OR GPL-2.0-only",
}
NAMED_LICENCES = {"ICC License"}

DEBIAN = {"name": "Debian", "url": ["https://www.debian.org/"]}
QT = {"name": "The Qt Company", "url": ["https://www.qt.io/"]}


def package_version(name):
    return subprocess.run(
        ["dpkg-query", "--show", "--showformat=${Version}", name], check=True, capture_output=True, text=True
    ).stdout


def debian_purl(name, version, architecture):
    return f"pkg:deb/debian/{name}@{version.replace('+', '%2B')}?arch={architecture}&distro=debian-12"


def qt_version(qt):
    """The version of Debian's source package."""
    return re.match(r"qt6-base \((\S+)\)", (qt / "source-info/changelog").read_text(encoding="utf-8")).group(1)


def qt_patches(qt):
    lines = (qt / "source-info/series").read_text(encoding="utf-8").splitlines()
    return [line.strip() for line in lines if line.strip() and not line.startswith("#")]


def used_parts(qt, program):
    """The descriptions of those parts in Qt that are in the program."""
    described = json.loads((qt / "source-info/attributions.json").read_text(encoding="utf-8"))
    parts = {part["Id"]: part for part in described}
    linked = program.read_bytes()
    return [parts[name] for name in sorted(PARTS) if PARTS[name].get("trace", b"") in linked]


def licences_of(part):
    identifier = part.get("LicenseId")
    if not identifier or identifier in NAMED_LICENCES:
        return [{"license": {"name": part.get("License") or identifier}}]
    return [{"expression": LICENCES.get(identifier, identifier)}]


def part_component(part):
    known = PARTS[part["Id"]]
    component = {
        "type": "library",
        "bom-ref": part["Id"],
        "supplier": QT,
        "name": part["Name"],
        "description": " ".join(part["QtUsage"].split()),
        "licenses": licences_of(part),
    }
    if part.get("Copyright"):
        copyrights = part["Copyright"]
        component["copyright"] = "\n".join(copyrights) if isinstance(copyrights, list) else copyrights
    version = part.get("Version")
    if version:
        component["version"] = version
        if "cpe" in known:
            component["cpe"] = known["cpe"].format(version=version) + ":*:*:*:*:*:*:*"
        if "purl" in known:
            component["purl"] = known["purl"].format(version=version)
    if part.get("Homepage"):
        component["externalReferences"] = [{"type": "website", "url": part["Homepage"]}]
    return component


def qt_component(qt, parts):
    patches = []
    for name in qt_patches(qt):
        found = re.match(r"cve-(\d+-\d+)", name, re.IGNORECASE)
        if found:
            patch = security_patch(f"CVE-{found.group(1)}")
        else:
            kind = "backport" if name.startswith("upstream_") else "unofficial"
            patch = {"type": kind, "resolves": [{"type": "enhancement"}]}
        patch["resolves"][0]["name"] = name
        patches.append(patch)
    version = qt_version(qt)
    return {
        "type": "framework",
        "bom-ref": "qt6-base",
        "supplier": DEBIAN,
        "publisher": QT["name"],
        "name": "Qt Base",
        "version": version,
        "description": "Core, Gui, Widgets and PrintSupport with their plugins, linked statically.",
        "licenses": [{"expression": "LGPL-3.0-only OR GPL-2.0-only OR GPL-3.0-only"}],
        "copyright": "Copyright (C) The Qt Company Ltd. and other contributors.",
        "cpe": f"cpe:2.3:a:qt:qt:{version.split('+')[0]}:*:*:*:*:*:*:*",
        "purl": debian_purl("qt6-base", version, "source"),
        "pedigree": {"patches": patches, "notes": "Debian's source package with all patches of its series."},
        "components": [part_component(part) for part in parts],
    }


def security_patch(advisory):
    return {"type": "backport", "resolves": [{"type": "security", "id": advisory}]}


def toolchain_components():
    gcc = package_version("gcc-mingw-w64-x86-64-posix-runtime")
    mingw = package_version("mingw-w64-x86-64-dev")
    nsis = package_version("nsis-common")
    runtime = "GPL-3.0-or-later WITH GCC-exception-3.1"
    components = [
        {
            "type": "library",
            "bom-ref": name,
            "supplier": DEBIAN,
            "publisher": publisher,
            "name": name,
            "version": version,
            "description": description,
            "licenses": [{"expression": licence}],
            "purl": debian_purl(package, version, architecture),
        }
        for name, publisher, package, architecture, version, licence, description in (
            ("libgcc", "Free Software Foundation", "gcc-mingw-w64-x86-64-posix-runtime", "amd64", gcc, runtime,
             "The compiler's run-time library, linked statically."),
            ("libstdc++", "Free Software Foundation", "gcc-mingw-w64-x86-64-posix-runtime", "amd64", gcc, runtime,
             "The C++ standard library, linked statically."),
            ("mingw-w64-crt", "mingw-w64 project", "mingw-w64-x86-64-dev", "all", mingw, "ZPL-2.1",
             "Start-up code and C run-time additions, linked statically."),
            ("winpthreads", "mingw-w64 project", "mingw-w64-x86-64-dev", "all", mingw, "MIT AND BSD-3-Clause",
             "Threads for the C++ standard library, linked statically."),
            ("nsis", "Nullsoft and contributors", "nsis-common", "all", nsis, "Zlib AND CPL-1.0",
             "The code of the setup program and of Uninstall.exe; not in the panel."),
        )
    ]  # fmt: skip
    # By the changelog of Debian's package.
    components[-1]["pedigree"] = {"patches": [security_patch("CVE-2023-37378")]}
    return components


def is_feature_on(qt, feature):
    headers = sorted(qt.glob("include/**/*config*.h"))
    pattern = re.compile(rf"^#define QT_FEATURE_{feature} (-?1)$", re.MULTILINE)
    values = {value for header in headers for value in pattern.findall(header.read_text(encoding="utf-8"))}
    if not values:
        raise ValueError(f"Qt's headers do not tell whether {feature} is on")
    return "1" in values


def vulnerabilities(qt, versions):
    table = json.loads((HERE / "advisories.json").read_text(encoding="utf-8"))
    result = []
    for advisory in table["advisories"]:
        component = advisory["component"]
        if component not in versions:
            continue
        analysis = {key: advisory[key] for key in ("state", "justification", "detail") if key in advisory}
        broken = []
        if versions[component] != table["versions"][component]:
            broken.append(f"Assessed for version {table['versions'][component]} only.")
        if "patch" in advisory and advisory["patch"] not in qt_patches(qt):
            broken.append(f"The patch {advisory['patch']} is not applied.")
        if "module_off" in advisory and (qt / f"lib/libQt6{advisory['module_off']}.a").exists():
            broken.append(f"The module {advisory['module_off']} is built.")
        if "feature_off" in advisory and is_feature_on(qt, advisory["feature_off"]):
            broken.append(f"The feature {advisory['feature_off']} is on.")
        if broken:
            print(f"{advisory['id']} of {component} must be assessed again: {' '.join(broken)}", file=sys.stderr)
            analysis = {"state": "in_triage", "detail": " ".join(broken)}
        result.append(
            {
                "bom-ref": advisory["id"],
                "id": advisory["id"],
                "source": {"name": "NVD", "url": f"https://nvd.nist.gov/vuln/detail/{advisory['id']}"},
                "analysis": {**analysis, "lastUpdated": f"{advisory.get('assessed', table['assessed'])}T00:00:00Z"},
                "affects": [{"ref": component}],
            }
        )
    return sorted(result, key=lambda entry: [int(part) for part in entry["id"].split("-")[1:]])


def describe(program, qt, version, publisher, commit, time):
    """The whole document as text."""
    parts = used_parts(qt, program)
    qt_part = qt_component(qt, parts)
    toolchain = toolchain_components()
    runtime = [component["bom-ref"] for component in toolchain if component["bom-ref"] != "nsis"]
    panel = {
        "type": "application",
        "bom-ref": "kinovra",
        "supplier": {"name": publisher},
        "publisher": publisher,
        "name": "Kinovra control panel",
        "version": version,
        "description": "KVwin98.exe, the control panel of the Kinovra Motion Analysis System, for 64-bit Windows.",
        "hashes": [{"alg": "SHA-256", "content": hashlib.sha256(program.read_bytes()).hexdigest()}],
        "pedigree": {"commits": [{"uid": commit}]},
    }
    practice = {
        "type": "application",
        "bom-ref": "kinovra-practice",
        "supplier": {"name": publisher},
        "publisher": publisher,
        "name": "Kinovra practice programs",
        "version": version,
        "description": "One program under the names of all analysis programs, which analyses nothing.",
        "pedigree": {"commits": [{"uid": commit}]},
    }
    components = [practice, qt_part, *toolchain]
    versions = {part["bom-ref"]: part.get("version") for part in [*qt_part["components"], *components]}
    document = {
        "bomFormat": "CycloneDX",
        "specVersion": "1.5",
        "version": 1,
        "metadata": {
            "timestamp": datetime.fromtimestamp(time, timezone.utc).strftime("%Y-%m-%dT%H:%M:%SZ"),
            "component": panel,
            "supplier": {"name": publisher},
        },
        "components": components,
        "dependencies": [
            {"ref": "kinovra", "dependsOn": ["qt6-base", *runtime]},
            {"ref": "kinovra-practice", "dependsOn": runtime},
            {"ref": "qt6-base", "dependsOn": [part["bom-ref"] for part in qt_part["components"]] + runtime},
        ],
        "vulnerabilities": vulnerabilities(qt, versions),
    }
    content = json.dumps(document, sort_keys=True)
    document["serialNumber"] = uuid.uuid5(uuid.NAMESPACE_OID, content).urn
    return json.dumps(document, indent=2, ensure_ascii=False) + "\n"


def main():
    if len(sys.argv) != 7:
        sys.exit(__doc__)
    program, qt, version, publisher, commit, time = sys.argv[1:]
    sys.stdout.reconfigure(encoding="utf-8", newline="\n")
    sys.stdout.write(describe(Path(program), Path(qt), version, publisher, commit, int(time)))


if __name__ == "__main__":
    main()

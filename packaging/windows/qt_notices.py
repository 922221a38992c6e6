#!/usr/bin/env python3
"""Keeps what Qt's unpacked source package says about itself: licences, patches, and the parts of others in it.

    qt_notices.py SOURCE FOLDER
"""

import json
import shutil
import sys
from pathlib import Path


def attributions(source):
    """Of each part: what its description says, the folder it is in, and its licence's text."""
    parts = []
    for path in sorted(source.glob("src/**/qt_attribution.json")) + sorted(source.glob("util/**/qt_attribution.json")):
        # These files have line ends within their texts.
        described = json.loads(path.read_text(encoding="utf-8"), strict=False)
        for part in described if isinstance(described, list) else [described]:
            files = part.get("LicenseFiles") or part.get("LicenseFile") or []
            texts = [path.parent / name for name in (files if isinstance(files, list) else [files])]
            part["Folder"] = path.parent.relative_to(source).as_posix()
            part["LicenseText"] = "\n".join(text.read_text(encoding="utf-8", errors="replace") for text in texts)
            parts.append(part)
    return parts


def main():
    if len(sys.argv) != 3:
        sys.exit(__doc__)
    source, folder = Path(sys.argv[1]), Path(sys.argv[2])
    folder.mkdir(parents=True, exist_ok=True)
    for name in ("copyright", "changelog", "patches/series"):
        shutil.copyfile(source / "debian" / name, folder / Path(name).name)
    text = json.dumps(attributions(source), indent=1, ensure_ascii=False, sort_keys=True)
    (folder / "attributions.json").write_text(text + "\n", encoding="utf-8", newline="\n")


if __name__ == "__main__":
    main()

#!/usr/bin/env python3
"""Fails when a translation is unfinished or missing: lupdate collects the
texts of the sources afresh into copies of translations/*.ts, and every
message must then carry a translation that keeps the source's placeholders,
accelerator and surrounding whitespace."""
import re
import shutil
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as ET
from pathlib import Path

LANGUAGES = ("de", "fr", "es")


def problems(ts: Path):
    found = []
    root = ET.parse(ts).getroot()
    for context in root.iter("context"):
        name = context.findtext("name")
        for message in context.iter("message"):
            source = message.findtext("source") or ""
            tr = message.find("translation")
            text = tr.text or ""
            where = f"{ts.name} [{name}] {source[:70]!r}"
            if tr.get("type") in ("unfinished", "vanished", "obsolete") or not text:
                found.append(f"{where}: not translated")
                continue
            if sorted(re.findall(r"%\d", source)) != sorted(re.findall(r"%\d", text)):
                found.append(f"{where}: placeholders differ in {text[:70]!r}")
            if len(re.findall(r"&\w", source)) != len(re.findall(r"&\w", text)):
                found.append(f"{where}: accelerator differs in {text[:70]!r}")
            if source.count("\n") != text.count("\n") or source[:1].isspace() != text[:1].isspace() \
                    or source[-1:].isspace() != text[-1:].isspace():
                found.append(f"{where}: line breaks or spaces differ in {text[:70]!r}")
    return found


def main():
    lupdate, project = sys.argv[1], Path(sys.argv[2])
    with tempfile.TemporaryDirectory() as tmp:
        copies = []
        for lang in LANGUAGES:
            original = project / "translations" / f"tabo_{lang}.ts"
            if not original.exists():
                print(f"missing {original}")
                return 1
            copy = Path(tmp) / original.name
            shutil.copy(original, copy)
            copies.append(copy)
        subprocess.run([lupdate, "-silent", "-locations", "none", "-no-obsolete", str(project / "src"), "-ts",
                        *map(str, copies)], check=True)
        found = [p for copy in copies for p in problems(copy)]
    for p in found[:60]:
        print(p)
    if found:
        print(f"{len(found)} problems; refresh with `cmake --build build --target update_translations`, "
              "then translate in Qt Linguist")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())

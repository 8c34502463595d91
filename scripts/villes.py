#!/usr/bin/env python3
"""Writes data/villes.tsv, the towns every new base starts with, from the npm package codes-postaux.

Run by hand when the postal codes of France change, then commit data/villes.tsv and
data/villes.LICENSE; the build only reads the committed file.

    scripts/villes.py                        # fetches the latest package with `npm pack`
    scripts/villes.py codes-postaux-4.1.2.tgz

One row per pair of postal code and commune, in the two columns of the table villes. A commune is named
as a postal address writes it: the commune's own name with its accents and case, except that the
municipal districts of Paris, Lyon and Marseille ("Paris 1er Arrondissement") take their city's name,
since their postal code already tells them apart ("75001 Paris").
"""

import json
import re
import subprocess
import sys
import tarfile
import tempfile
import unicodedata
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
SCHEMA = ROOT / "data" / "schema.sql"
TABLE = ROOT / "data" / "villes.tsv"
LICENCE = ROOT / "data" / "villes.LICENSE"

DISTRICT = re.compile(r"^(.+) \d+(?:er|e) Arrondissement$")


def column_lengths():
    """The text lengths of the columns of villes, as the schema declares them."""
    schema = SCHEMA.read_text(encoding="utf-8")
    body = re.search(r"CREATE TABLE villes \((.*?)\);", schema, re.S)
    if not body:
        sys.exit(f"{SCHEMA}: table villes introuvable")
    lengths = dict(re.findall(r"(\w+)\s+VARCHAR\((\d+)\)", body.group(1)))
    return int(lengths["code_postal"]), int(lengths["détails"])


def fetch_package(folder):
    subprocess.run(["npm", "pack", "--silent", "codes-postaux"], cwd=folder, check=True,
                   stdout=subprocess.DEVNULL)
    return next(Path(folder).glob("codes-postaux-*.tgz"))


def read_package(archive):
    with tarfile.open(archive) as tar:
        def text(name):
            return tar.extractfile(f"package/{name}").read().decode("utf-8")
        manifest = json.loads(text("package.json"))
        return manifest, json.loads(text("codes-postaux.json")), text("LICENSE")


def postal_name(commune):
    district = DISTRICT.match(commune)
    return district.group(1) if district else commune


def sort_key(row):
    code, name = row
    plain = unicodedata.normalize("NFD", name)
    plain = "".join(c for c in plain if not unicodedata.combining(c))
    return code, plain.casefold(), name


def rows_of(entries, code_length, name_length):
    rows = set()
    for entry in entries:
        code, name = entry["codePostal"], postal_name(entry["nomCommune"]).strip()
        if not re.fullmatch(r"\d{5}", code) or not name or "\t" in name or "\n" in name:
            sys.exit(f"entrée inattendue : {entry}")
        if len(code) > code_length or len(name) > name_length:
            sys.exit(f"trop long pour villes ({code_length}, {name_length}) : {code} {name}")
        rows.add((code, name))
    return sorted(rows, key=sort_key)


def main():
    code_length, name_length = column_lengths()
    with tempfile.TemporaryDirectory() as folder:
        archive = Path(sys.argv[1]) if len(sys.argv) > 1 else fetch_package(folder)
        manifest, entries, licence = read_package(archive)
    rows = rows_of(entries, code_length, name_length)
    with TABLE.open("w", encoding="utf-8", newline="\n") as out:
        out.write("code_postal\tdétails\n")
        for code, name in rows:
            out.write(f"{code}\t{name}\n")
    LICENCE.write_text(
        f"data/villes.tsv is derived from the npm package {manifest['name']} {manifest['version']}\n"
        f"({manifest['repository']}), made from the Code officiel géographique of INSEE,\n"
        "by scripts/villes.py. The package is distributed under the following licence.\n\n" + licence,
        encoding="utf-8")
    print(f"{TABLE.relative_to(ROOT)} : {len(rows)} villes ({manifest['name']} {manifest['version']})")


if __name__ == "__main__":
    main()

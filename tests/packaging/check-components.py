#!/usr/bin/env python3
"""check-components.py SOURCE [BUILD | --accept]: holds packaging/components.json to whatever else says what is used.

That is the table of COPYRIGHT (--accept writes it), the list of Debian packages, what debian/control depends on, and, with
BUILD, what the programs and libraries of a build are linked with.
"""
import json
import pathlib
import re
import subprocess
import sys

USES = ["linked", "loaded", "called", "build", "test"]
FIELDS = {"name", "purpose", "licence", "package", "use", "obligation"}
HEAD = ["| component | what for | Debian package | use | licence | what it asks of who distributes |",
        "|---|---|---|---|---|---|"]


def read_components(source, problems):
    rows = json.loads((source / "packaging/components.json").read_text(encoding="utf-8"))["components"]
    for row in rows:
        name = row.get("name", "a component without a name")
        if not FIELDS <= row.keys() <= FIELDS | {"libraries", "parts", "program", "versionArgument"}:
            problems.append(f"{name}: fields are missing or unknown: {sorted(row)}")
        elif row["use"] not in USES or any(not row[field].strip() or "|" in row[field] for field in FIELDS):
            problems.append(f"{name}: a field has no meaning")
        elif not re.fullmatch(r"[\w.+-]+( (AND|OR|WITH) [\w.+-]+)*", row["licence"]):
            problems.append(f"{name}: \"{row['licence']}\" is no SPDX expression")
    names = [row["name"] for row in rows]
    problems.extend(f"{name} stands twice" for name in set(names) if names.count(name) > 1)
    return rows


def table(rows):
    ordered = sorted(rows, key=lambda row: USES.index(row["use"]))
    return HEAD + ["| {name} | {purpose} | {package} | {use} | {licence} | {obligation} |".format(**row) for row in ordered]


def packages_of(source):
    lines = (source / "packaging/debian-packages.txt").read_text(encoding="utf-8").splitlines()
    words = [line.split("#")[0].split() for line in lines]
    return {word[0]: set(word[1:]) for word in words if word}


def control_fields(source, field):
    """The names in a field of debian/control, of all its paragraphs."""
    names = set()
    for value in re.findall(rf"^{field}:((?:.*\n)(?: .*\n)*)", (source / "debian/control").read_text(encoding="utf-8"), re.M):
        names |= {part.split()[0] for part in value.replace("\n", " ").split(",") if part.strip()}
    return names


def check_control(source, rows, packages, problems):
    wanted = {row["package"] for row in rows if row["use"] in ("linked", "loaded")} - {"build-essential"}
    needed = control_fields(source, "Build-Depends") - {"debhelper-compat"}
    problems.extend(f"debian/control does not build-depend on {name}" for name in sorted(wanted - needed))
    problems.extend(f"debian/control builds with {name}, which debian-packages.txt does not have unmarked"
                    for name in sorted(needed) if packages.get(name, {"absent"}))
    offered = set().union(*(control_fields(source, field) for field in ("Depends", "Recommends", "Suggests")))
    problems.extend(f"no package depends on, recommends or suggests {row['package']}, which is called"
                    for row in rows if row["use"] == "called" and row["package"] not in offered)
    for row in rows:
        if row["use"] == "loaded" and row["package"].replace("-dev", "1") not in offered:
            problems.append(f"no package depends on, recommends or suggests the library of {row['package']}")


def needed_libraries(build):
    """Library → the installed files of a build that are linked with it."""
    users = {}
    for path in sorted([*build.glob("bin/*"), *build.glob("lib/tarvo/**/*")]):
        if path.is_symlink() or not path.is_file() or path.open("rb").read(4) != b"\x7fELF":
            continue
        said = subprocess.run(["readelf", "--dynamic", path], check=True, capture_output=True, text=True).stdout
        for library in re.findall(r"\(NEEDED\).*\[(.*)\]", said):
            users.setdefault(library, set()).add(path.relative_to(build))
    return users


def check_build(build, rows, problems):
    users = needed_libraries(build)
    if len(users) < 10:
        problems.append(f"only {len(users)} libraries are needed in {build}")
    stated = {library: row for row in rows for library in row.get("libraries", [])}
    for library, files in sorted(users.items()):
        if library.startswith("libTarvoHost"):
            continue
        row = stated.get(library)
        if not row or row["use"] != "linked":
            problems.append(f"{library} is linked into {min(files)}, and no component says so")
        elif row.get("parts") == ["simulation"]:
            problems.extend(f"{row['name']} is linked into {file}, outside of the simulation component"
                            for file in files if "simulation" not in file.parts)
    problems.extend(f"nothing is linked with {library}, which {stated[library]['name']} names"
                    for library in sorted(stated.keys() - users.keys()) if not library.startswith("ld-"))


def main():
    source = pathlib.Path(sys.argv[1])
    problems = []
    rows = read_components(source, problems)
    packages = packages_of(source)
    stated = {row["package"] for row in rows}
    problems.extend(f"no component says what {name} of debian-packages.txt is" for name in sorted(packages.keys() - stated))
    problems.extend(f"debian-packages.txt does not have {name} of components.json" for name in sorted(stated - packages.keys()))
    check_control(source, rows, packages, problems)

    path = source / "COPYRIGHT"
    text = path.read_text(encoding="utf-8")
    if sys.argv[2:] == ["--accept"]:
        kept = [line for line in text.splitlines() if not line.startswith("|")]
        path.write_text("\n".join(kept).rstrip() + "\n\n" + "\n".join(table(rows)) + "\n", encoding="utf-8")
    elif [line for line in text.splitlines() if line.startswith("|")] != table(rows):
        problems.append("the table of COPYRIGHT is not that of components.json: check-components.py SOURCE --accept writes it")
    if sys.argv[2:] and sys.argv[2] != "--accept":
        check_build(pathlib.Path(sys.argv[2]), rows, problems)
    for problem in problems:
        print(problem, file=sys.stderr)
    return 1 if problems else 0


sys.exit(main())

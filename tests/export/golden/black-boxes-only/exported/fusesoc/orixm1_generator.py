#!/usr/bin/env python3
"""Makes a FuseSoC core of a subsystem from its configuration (.ipc).

usage: orixm1_generator.py FILE

FILE is the YAML file of FuseSoC's generator interface 1.0: "gapi", "files_root", "vlnv" and "parameters", which are "ipc",
the configuration, and "orixm1", the program. Relative paths start from "files_root". The core goes into the current folder;
where that cannot be done, nothing does, and standard error says why."""

import json
import os
import re
import shutil
import subprocess
import sys
import tempfile

FORMATS = ["rtl", "testbench", "lint", "sdc", "fusesoc"]
OTHERS = ["fusesoc", "orixm1-export.json"]  # of what is written, these are no part of the core


class Failure(Exception):
    pass


def read_request(path):
    try:
        import yaml
    except ImportError:
        raise Failure("Python's yaml (python3-yaml) is missing")
    try:
        with open(path, encoding="utf-8") as file:
            request = yaml.safe_load(file)
    except (OSError, UnicodeDecodeError, yaml.YAMLError) as error:
        raise Failure('"%s" cannot be read: %s' % (path, error))
    if not isinstance(request, dict):
        raise Failure('"%s" is no request of FuseSoC' % path)
    if str(request.get("gapi")) != "1.0":
        raise Failure('gapi is "%s"; this generator knows "1.0"' % request.get("gapi"))
    for key in ("files_root", "vlnv"):
        if not isinstance(request.get(key), str) or not request[key]:
            raise Failure('"%s" has no "%s"' % (path, key))
    if not isinstance(request.get("parameters") or {}, dict):
        raise Failure('"parameters" is no mapping')
    return request


def parameters_of(request):
    parameters = request.get("parameters") or {}
    for key, value in parameters.items():
        if key not in ("ipc", "orixm1"):
            raise Failure('unknown parameter "%s"; there are: ipc, orixm1' % key)
        if not isinstance(value, str) or not value:
            raise Failure('parameter "%s" is no path' % key)
    if "ipc" not in parameters:
        raise Failure('parameter "ipc" is missing: the path of the configuration')
    return parameters


def program_of(parameters, root):
    named = parameters.get("orixm1")
    if named and os.path.dirname(named):
        named = os.path.join(root, named)
    wanted = named or os.environ.get("ORIXM1") or "orixm1"
    program = shutil.which(wanted)
    if not program:
        raise Failure('the program "%s" is not there; put orixm1 on the search path, or name it with the environment '
                      'variable ORIXM1 or the parameter "orixm1"' % wanted)
    return os.path.abspath(program)


def run(program, *arguments):
    try:
        ended = subprocess.run([program, *arguments], stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                               stderr=subprocess.PIPE, encoding="utf-8", errors="replace")
    except OSError as error:
        raise Failure('"%s" cannot be run: %s' % (program, error.strerror))
    return ended.returncode, ended.stdout, ended.stderr


def remove(path):
    if os.path.isdir(path) and not os.path.islink(path):
        shutil.rmtree(path)
    elif os.path.lexists(path):
        os.remove(path)


def make_core(request):
    parameters = parameters_of(request)
    root = os.path.abspath(request["files_root"])
    program = program_of(parameters, root)
    ipc = os.path.join(root, parameters["ipc"])
    if not os.path.isfile(ipc):
        raise Failure('there is no configuration "%s"' % ipc)
    status, findings, said = run(program, "check", ipc)
    if status != 0:
        raise Failure('the configuration "%s" is wrong:\n%s' % (ipc, (findings + said).strip()))
    folder = tempfile.mkdtemp(prefix=".orixm1-", dir=".")
    try:
        status, _, said = run(program, "export", ipc, *FORMATS, "--out", folder)
        if status != 0:
            raise Failure('"%s" could not be exported:\n%s' % (ipc, said.strip()))
        sys.stderr.write(findings + said)
        cores = [name for name in os.listdir(folder) if name.endswith(".core")]
        if len(cores) != 1:
            raise Failure('"%s" gives %d cores, not one' % (ipc, len(cores)))
        path = os.path.join(folder, cores[0])
        with open(path, encoding="utf-8", newline="") as file:
            text = file.read()
        line = "name: " + json.dumps(request["vlnv"])
        text, count = re.subn(r"^name: .*$", lambda _: line, text, count=1, flags=re.MULTILINE)
        if count != 1:
            raise Failure('"%s" has no name' % cores[0])
        with open(path, "w", encoding="utf-8", newline="") as file:
            file.write(text)
        # The core last: where it stands, its files do.
        for name in sorted(os.listdir(folder), key=lambda name: (name in cores, name)):
            if name not in OTHERS:
                remove(name)
                os.rename(os.path.join(folder, name), name)
    finally:
        shutil.rmtree(folder, ignore_errors=True)


def main(arguments):
    if len(arguments) != 2 or arguments[1] in ("-h", "--help"):
        print(__doc__, file=sys.stdout if len(arguments) == 2 else sys.stderr)
        return 0 if len(arguments) == 2 else 2
    try:
        make_core(read_request(arguments[1]))
    except Failure as failure:
        print("orixm1_generator: %s" % failure, file=sys.stderr)
        return 1
    except OSError as error:
        print("orixm1_generator: %s" % error, file=sys.stderr)
        return 1
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv))

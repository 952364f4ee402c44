"""Holds share/ to what it says: the schema accepts the example catalogs and good documents and refuses
bad ones, each for its reason; the XML catalog, the editor's settings and the media type lead to it.

    xmc_schema.py ROOT WORK
"""

import fnmatch
import json
import os
import re
import shutil
import subprocess
import sys
from pathlib import Path

ROOT, WORK = Path(sys.argv[1]), Path(sys.argv[2])
SCHEMA = ROOT / "share/xml/xmc.xsd"


def xmc(content, version="1.1"):
    return f'<?xml version="1.0"?>\n<xmc version="{version}">{content}</xmc>\n'


def catalog(content, attributes='name="app" lang="en"'):
    return xmc(f"<catalog {attributes}>{content}</catalog>")


def msg(content, attributes='name="m"'):
    return catalog(f"<msg {attributes}>{content}</msg>")


def arg(attributes):
    return msg(f"<arg {attributes}/>")


FORMATS = ("base", "fieldsize", "precision", "short_form", "target_unit", "base_unit")
VALUES = {
    "base": "hex",
    "fieldsize": "8",
    "precision": "2",
    "short_form": "true",
    "target_unit": "MB",
    "base_unit": "KB",
}
TYPES = "value string int double duration memory mem memory_unit mem_unit metric metric_unit".split()
BASES = "dec default spaced_dec hex oct bin".split()
UNITS = "B KB MB GB TB PB EB ZB YB a f p n mc m base k M G T P E Z Y".split()


def good():
    yield xmc('<include file="a.xmc"/>')
    yield xmc('<include file="a.xmc"/>', "1.0")
    yield catalog("")
    yield xmc('<catalog name="a" lang="."/><include file="b"/><catalog name="a" lang="de"/>')
    yield catalog("<msg name='a'>x</msg><!-- c --><msg name='b' meta=''/>")
    yield msg("a<br/>b<argument name='n'>a word</argument>&amp;<!-- c -->&#65;", 'meta="x" name="m"')
    for language in (".", "en", "de_AT", "de-AT", "de.AT", "zh_Hant_TW", "x1"):
        yield catalog("", f'name="app" lang="{language}"')
    for word in TYPES:
        yield arg(f'name="n" type="{word}"')
        yield arg(f'name="n" type="{word.upper()}"')
        yield arg(f'name="n" type="{word.title()}"')
    for base in BASES:
        for length in range(1, len(base) + 1):
            yield arg(f'name="n" type="int" base="{base[:length]}"')
    for truth in ("true", "false"):
        for length in range(1, len(truth) + 1):
            yield arg(f'name="n" type="duration" short_form="{truth[:length]}"')
    for unit in UNITS:
        yield arg(f'name="n" type="metric" base_unit="{unit}" target_unit="{unit}"')
    for number in ("0", "7", "12345"):
        yield arg(f'name="n" type="double" precision="{number}" fieldsize="{number}"')
    for name in FORMATS:
        for length in range(1, len(name) + 1):
            yield arg(f'name="n" {name[:length]}="{VALUES[name]}"')


# What is wrong, and a word of why.
BAD = (
    ('<?xml version="1.0"?>\n<xmc/>', "version"),
    (xmc("", "1.1"), "Missing child"),
    (xmc("<include file='a'/>", "2.0"), "version"),
    (xmc("<include file='a'/>", ""), "version"),
    ('<?xml version="1.0"?>\n<xmc version="1.1" lang="en"><include file="a"/></xmc>', "lang"),
    ('<?xml version="1.0"?>\n<XMC version="1.1"><include file="a"/></XMC>', "XMC"),
    ('<?xml version="1.0"?>\n<catalog name="a" lang="en"/>', "No matching global declaration"),
    (xmc("lost text<include file='a'/>"), "Character content"),
    (xmc("<include/>"), "file"),
    (xmc("<include file=''/>"), "file"),
    (xmc("<include file='a' name='b'/>"), "name"),
    (xmc("<include file='a'>b</include>"), "Character content"),
    (xmc("<msg name='m'/>"), "msg"),
    (catalog("", 'name="app"'), "lang"),
    (catalog("", 'lang="en"'), "name"),
    (catalog("", 'name="" lang="en"'), "name"),
    (catalog("", 'name="app" lang=""'), "lang"),
    (catalog("", 'name="app" lang="de AT"'), "lang"),
    (catalog("", 'name="app" lang="de__AT"'), "lang"),
    (catalog("", 'name="app" lang="_"'), "lang"),
    (catalog("", 'name="app" lang=".."'), "lang"),
    (catalog("", 'name="app" lang="en" meta="x"'), "meta"),
    (catalog("lost text"), "Character content"),
    (catalog("<include file='a'/>"), "include"),
    (catalog("<catalog name='a' lang='en'/>"), "catalog"),
    (catalog("<msg name='a'/><msg name='a'/>"), "one_text_for_a_message"),
    (msg("x", ""), "name"),
    (msg("x", 'name=""'), "name"),
    (msg("x", 'name="m" lang="en"'), "lang"),
    (msg("<b>x</b>"), "'b'"),
    (msg("<Arg name='n'/>"), "Arg"),
    (msg("<br>x</br>"), "Character content"),
    (msg("<br name='n'/>"), "name"),
    (msg("<arg/>"), "name"),
    (msg("<arg name=''/>"), "name"),
    (msg("<arg name='n'><br/></arg>"), "br"),
    (arg('name="n" type=""'), "type"),
    (arg('name="n" type="integer"'), "type"),
    (arg('name="n" type="in"'), "type"),
    (arg('name="n" type="number"'), "type"),
    (arg('name="n" type="time"'), "type"),
    (arg('name="n" type="date"'), "type"),
    (arg('name="n" type="int" base="decimal"'), "base"),
    (arg('name="n" type="int" base=""'), "base"),
    (arg('name="n" type="int" base="HEX"'), "base"),
    (arg('name="n" type="double" precision="two"'), "precision"),
    (arg('name="n" type="double" precision=""'), "precision"),
    (arg('name="n" type="double" precision="-1"'), "precision"),
    (arg('name="n" type="double" fieldsize="8px"'), "fieldsize"),
    (arg('name="n" type="duration" short_form="yes"'), "short_form"),
    (arg('name="n" type="duration" short_form=""'), "short_form"),
    (arg('name="n" type="memory" target_unit="kB"'), "target_unit"),
    (arg('name="n" type="memory" target_unit="any"'), "target_unit"),
    (arg('name="n" type="metric" base_unit="kilo"'), "base_unit"),
    (arg('name="n" Base="hex"'), "Base"),
    (arg('name="n" fieldsizes="8"'), "fieldsizes"),
    (arg('name="n" width="8"'), "width"),
)


def validate(files):
    """What the validator says of each file: the text of its faults, empty for a good one."""
    ran = subprocess.run(["xmllint", "--nonet", "--noout", "--schema", str(SCHEMA), *map(str, files)],
                         capture_output=True, text=True, check=False)
    faults = {str(file): None for file in files}
    texts = {str(file): [] for file in files}
    for line in ran.stderr.splitlines():
        verdict = re.fullmatch(r"(.*) (validates|fails to validate)", line)
        if verdict:
            faults[verdict[1]] = "\n".join(texts[verdict[1]]) if verdict[2] != "validates" else ""
            continue
        place = re.match(r"(.*?):\d+: ", line)
        if place and place[1] in texts:
            texts[place[1]].append(line)
    return faults


def write_all(folder, documents):
    shutil.rmtree(folder, ignore_errors=True)
    folder.mkdir(parents=True)
    files = [folder / f"{number}.xmc" for number in range(len(documents))]
    for file, document in zip(files, documents):
        file.write_text(document, encoding="utf-8")
    return files


def check_schema(wrong):
    files = sorted([*ROOT.glob("examples/catalogs/**/*.xm[cl]")])
    assert len(files) > 5, files
    files += write_all(WORK / "good", list(good()))
    for file, fault in validate(files).items():
        if fault != "":
            wrong.append(f"refused: {file}: {fault}")
    bad_files = write_all(WORK / "bad", [document for document, _ in BAD])
    faults = validate(bad_files)
    for file, (document, reason) in zip(bad_files, BAD):
        if not faults[str(file)] or reason not in faults[str(file)]:
            wrong.append(f"should be refused for \"{reason}\": {document}: {faults[str(file)]}")
    broken = validate([ROOT / "examples/broken/parts/report.xmc"])
    if not all(broken.values()):
        wrong.append("the broken example is accepted")
    return len(files) + len(BAD)


def check_binding(wrong):
    settings = json.loads((ROOT / "share/editors/vscode-settings.json").read_text(encoding="utf-8"))
    (association,) = settings["xml.fileAssociations"]
    if not fnmatch.fnmatch("a/b/app.xmc", association["pattern"]):
        wrong.append("the editor's pattern passes over catalogs")
    (installed,) = settings["xml.catalogs"]
    if installed != "/usr/share/quor/xml/catalog.xml":
        wrong.append("the editor's setting names another place than the package's")
    found = subprocess.run(["xmlcatalog", str(ROOT / "share/xml/catalog.xml"), association["systemId"]],
                           capture_output=True, text=True, check=False).stdout.strip()
    if found.removeprefix("file://") != str(SCHEMA):
        wrong.append(f"the XML catalog leads to {found}")


def check_media_type(wrong):
    packages = WORK / "mime/packages"
    shutil.rmtree(WORK / "mime", ignore_errors=True)
    packages.mkdir(parents=True)
    shutil.copy(ROOT / "share/mime/quor-xmc.xml", packages)
    subprocess.run(["update-mime-database", str(WORK / "mime")], check=True,
                   env={**os.environ, "PKGSYSTEM_ENABLE_FSYNC": "0"})
    for file, line in (("globs2", "50:application/x-xmc+xml:*.xmc"), ("subclasses", "application/x-xmc+xml application/xml"),
                       ("XMLnamespaces", " xmc application/x-xmc+xml")):
        if line not in (WORK / "mime" / file).read_text(encoding="utf-8").splitlines():
            wrong.append(f"the media type's {file} has no line \"{line}\"")


def main():
    wrong = []
    count = check_schema(wrong)
    check_binding(wrong)
    if shutil.which("update-mime-database"):
        check_media_type(wrong)
    print("\n".join(wrong), file=sys.stderr)
    print(f"{count} documents, {len(wrong)} wrong")
    return 1 if wrong else 0


if __name__ == "__main__":
    sys.exit(main())

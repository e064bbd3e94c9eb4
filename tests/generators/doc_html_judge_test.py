"""Holds the judge of documentation sites to a small site without a fault, and to copies of it with one fault each, which it must find.

    doc_html_judge_test.py WORK-FOLDER PROGRAM
"""

import pathlib
import re
import shutil
import sys

from doc_html import SUFFIX, installed, judged, judged_pages
from typescript import HERE, need_node

SMALL = HERE / "doc_html" / "small"
INDEX = "src/pages/index.astro"
OPERATION = "src/components/operations/GetPet.astro"
# File, what stands there, what takes its place, and what the judge says.
FAULTS = {
    "broken link": ("src/components/Overview.astro", "/#tag_pets", "/pats#tag_pets", r"Overview\.astro: /pats#tag_pets leads to no page"),
    "broken link of a locale": (INDEX, '"href":"/"', '"href":"/pl"', r"index\.astro: /pl leads to no page"),
    "missing anchor": ("src/components/schemas/Pet.astro", "id={\"resource_Pet\"} ", "", r"/#resource_Pet leads to no anchor"),
    "anchor of another page": ("src/pages/search.astro", "/#operation", "/search#operation", r"/search#operation_\S+ leads to no anchor"),
    "anchor twice": (INDEX, "tag_pets", "overview", r"index\.astro: has two anchors overview"),
    "empty fragment": ("src/components/sidebar/Resources.astro", "/#resource_Pet", "/#", r"/# has an empty fragment"),
    "script as link": ("src/components/sidebar/Resources.astro", "/#resource_Pet", "javascript:m()", r"javascript:m\(\) leads to no page"),
    "broken escape in a link": ("src/components/sidebar/Resources.astro", "/#resource_Pet", "/#resource_%zz", r"is no URL"),
    "import of a missing file": (INDEX, "@components/schemas/Pet.astro", "@components/schemas/Pat.astro", r"imports @components/schemas/Pat"),
    "import without its extension": (INDEX, "@components/Overview.astro", "@components/Overview", r"imports @components/Overview, which"),
    "import beside the table": (OPERATION, "operation/Parameter.astro", "operation/Cookie.astro", r"imports \S+Cookie\.astro, which is"),
    "no import": (INDEX, 'import Group from "@loomwork/spec-loom-doc-html-template/src/components/Group.astro";\n', "",
                  r"<Group>, which it does not import"),
    "symbol that is none": (INDEX, "Operation_GetPet", "Operation_Get.pet-1", r"index\.astro: "),
    "broken expression": (OPERATION, '"getPet"', '"get"Pet"', r"GetPet\.astro: "),
    "broken attribute": (OPERATION, 'method="get"', 'method="g"et"', r"GetPet\.astro: "),
    "expression in a text": (OPERATION, "<Responses slot", "{6*7}<Responses slot", r"would be evaluated: 6\*7"),
    "call in an attribute": (OPERATION, '"getPet"', "alert(1)", r"would be evaluated: alert\(1\)"),
    "template literal": (OPERATION, '{"getPet"}', "`get${6*7}`", r"would be evaluated: `get"),
    "statement in front matter": (OPERATION, "---\n<Operation", "alert(1);\n---\n<Operation", r"would be evaluated: alert\(1\)"),
    "component on no page": (INDEX, "<Resource_Pet />", '<a id="resource_Pet"></a>', r"schemas/Pet\.astro: is on no page"),
    "page that is none": ("src/pages/search.astro", None, "src/pages/_search.astro", r"_search\.astro: is no page to Astro"),
    "lost summary": (OPERATION, 'Look at a \\"pet\\"', "Look at a pet", r"lacks the summary"),
    "lost word of a description": (OPERATION, "not", "", r"of the description of the operation it lacks not"),
    "lost parameter": (OPERATION, 'name={"id"} ', "", r"lacks the parameter"),
    "lost operationId": (OPERATION, 'operationId={"getPet"} ', "", r"lacks the operationId"),
    "lost server": (OPERATION, "https://pets.example/v1", "https://pets.example", r"lacks the server"),
    "lost property": ("src/components/schemas/Pet.astro", "petName", "petname", r"lacks the property"),
    "title escaped twice": ("src/components/Overview.astro", "{6*7}", "&lcub;6*7&rcub;", r"lacks the title"),
    "lost tag": ("src/components/Overview.astro", 'name={"pets"} ', "", r"lacks the tag"),
    "lost operation": (OPERATION, 'method="get"', 'method="put"', r"get /pets/\{id\}: no component"),
    "lost schema": ("src/components/sidebar/Resources.astro", 'name={"Pet"} ', "", r"lacks the schema"),
    "broken configuration": ("astro.config.mjs", "default base", "default = base", r"astro\.config\.mjs: "),
}

PAGE = "index.html"
PAGE_FAULTS = {
    "script": (PAGE, "<em>", "<script>m()</script><em>", r"an element <script>"),
    "form": (PAGE, "<em>", "<form></form><em>", r"an element <form>"),
    "event handler": (PAGE, "<em>", '<img src="x" onerror="m()"><em>', r"an attribute onerror of <img>"),
    "link that runs": (PAGE, "elsewhere", "javascript:m()", r"a link that runs: javascript:m\(\)"),
    "hidden link that runs": (PAGE, "elsewhere", "\x01 Java\tScript:m()", r"a link that runs"),
    "data as link": (PAGE, "https://pets.example/terms", "data:text/html,m()", r"a link that runs: data:"),
    "comment": (PAGE, "<em>", "<!-- x --><em>", r"a comment:  x"),
    "evaluated expression": (PAGE, "{6*7}", "42", r"no page has the text Pets"),
    "evaluated beside its text": (PAGE, "{6*7}", "{6*7} 42", r"a page has the text !42"),
    "link to no page": (PAGE, "/search", "/find", r"/find leads to no page"),
    "link to no anchor": ("search.html", "/#overview", "/#over", r"/#over leads to no anchor"),
    "anchor twice": (PAGE, "<em>", '<em id="overview">', r"two anchors overview"),
    "file that runs": (PAGE, None, "page.js", r"page\.js: something that runs"),
}


def run_of(name, folder, suffix=""):
    return {"name": name, "folder": str(folder), "document": str(SMALL / "document.json"),
            "locales": [{"segment": "", "suffix": suffix}], "operations": "merge"}


def planted(source, work, name, fault):
    """A copy of a folder with a fault in it."""
    folder = work / source / name.replace(" ", "-")
    shutil.copytree(SMALL / source, folder)
    file, old, new, _ = fault
    if old is None:
        (folder / file).rename(folder / new)
        return folder
    text = (folder / file).read_text()
    assert old in text, f"{name}: {file} lacks {old}"
    (folder / file).write_text(text.replace(old, new))
    return folder


def not_found(faults, results):
    """What is wrong with the judgement of faults: `results` has what was said of each by its name, and of the folder without one by ""."""
    wrong = [f"without a fault: {text}" for text in results[""]]
    return wrong + [f"{name}: not found, but {results[name]}" for name, fault in faults.items()
                    if not any(re.search(fault[3], text) for text in results[name])]


def main():
    need_node()
    work = pathlib.Path(sys.argv[1]).resolve()
    modules = installed(work)
    work /= "doc_html_judge"
    shutil.rmtree(work, ignore_errors=True)
    runs = [run_of(name, planted("site", work, name, fault)) for name, fault in FAULTS.items()]
    runs += [run_of("", SMALL / "site"), run_of("translation", SMALL / "site", SUFFIX)]
    results = {result["name"]: result["faults"] for result in judged(modules, runs, work)}
    wrong = not_found(FAULTS | {"translation": (None, None, None, r"lacks the summary .*\(de\)")}, results)

    folders = {name: planted("pages", work, name, fault) for name, fault in PAGE_FAULTS.items()} | {"": SMALL / "pages"}
    results = {name: judged_pages(modules, folder, ["Pets {6*7}", "!42"])["faults"] for name, folder in folders.items()}
    wrong += not_found(PAGE_FAULTS, results)
    print(*wrong, sep="\n")
    shutil.rmtree(work)
    return 1 if wrong else 0


if __name__ == "__main__":
    sys.exit(main())

#!/usr/bin/env python3
"""Makes the help file out of the manual's pages: help.py FOLDER. It comes out as FOLDER/quillet.chm.

The pages are the manual's start and those that it links to, in this order; the type library's help topics are among
them."""
import pathlib
import re
import shutil
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
DOCS = ROOT / "docs"
START = "manual"

STYLE = """body { font: 10pt Tahoma, sans-serif; margin: 1em 1.5em; max-width: 60em }
h1 { font-size: 16pt } h2 { font-size: 12pt; margin-top: 1.5em }
table { border-collapse: collapse } td, th { border: 1px solid #bbb; padding: 2px 6px; text-align: left;
vertical-align: top } th { background: #eee } code, pre { font-family: Consolas, monospace }
pre { background: #f4f4f4; padding: 6px; white-space: pre-wrap } img { max-width: 100% }"""

PAGE = """<!DOCTYPE HTML PUBLIC "-//W3C//DTD HTML 4.01//EN">
<html><head><meta http-equiv="Content-Type" content="text/html; charset=utf-8"><title>{title}</title>
<style>{style}</style></head><body>
{body}
</body></html>
"""

# The compiler's own kind of project: in the usual kind it turns a topic's page into a path of this machine.
PROJECT = """<?xml version="1.0" encoding="utf-8"?>
<CONFIG>
  <Files>
    <Count Value="{count}"/>
{files}
  </Files>
  <OtherFiles><Count Value="0"/></OtherFiles>
  <Settings>
    <IndexFile Value="quillet.hhk"/>
    <TOCFile Value="quillet.hhc"/>
    <MakeBinaryTOC Value="False"/>
    <MakeBinaryIndex Value="False"/>
    <AutoFollowLinks Value="False"/>
    <MakeSearchable Value="True"/>
    <DefaultPage Value="{start}.html"/>
    <Title Value="Quillet"/>
    <OutputFileName Value="quillet.chm"/>
    <ScanHtmlContents Value="False"/>
    <LocaleID Value="1033"/>
  </Settings>
</CONFIG>
"""

SITEMAP = """<!DOCTYPE HTML PUBLIC "-//IETF//DTD HTML//EN">
<html><head></head><body><ul>
{items}
</ul></body></html>
"""


def linked(page):
    """The manual's pages that a page links to."""
    return re.findall(r"\]\((\w+)\.md\)", (DOCS / f"{page}.md").read_text(encoding="utf-8"))


def pages():
    """The pages in the order of the contents, each with the name and number of its topic; empty and 0 for none."""
    text = (ROOT / "src/typelib/HelpContexts.h").read_text(encoding="utf-8")
    numbers = {name.lower(): int(number) for name, number in re.findall(r"kHelp(\w+) = (\d+);", text)}
    names = list(dict.fromkeys([START, *linked(START)]))
    lost = {target for name in names for target in linked(name)} - set(names)
    if lost or not numbers.keys() <= {name.lower() for name in names}:
        sys.exit(f"help: {START}.md has to link to every page of the manual: {', '.join(lost) or 'a topic is missing'}")
    return [(name, f"HELP_{name.upper()}" if name.lower() in numbers else "", numbers.get(name.lower(), 0)) for name in names]


def html_of(page):
    text = (DOCS / f"{page}.md").read_text(encoding="utf-8")
    text = re.sub(r"\]\((\w+)\.md\)", r"](\1.html)", text)
    title = re.match(r"# (.*)", text).group(1)
    html = subprocess.run(
        ["cmark-gfm", "-e", "table"], input=text, capture_output=True, text=True, encoding="utf-8", check=True
    )
    return title, html.stdout


def sitemap(entries):
    item = '<li><object type="text/sitemap"><param name="Name" value="{}"><param name="Local" value="{}"></object>'
    return SITEMAP.format(items="\n".join(item.format(name, target) for name, target in entries))


def index_entries(page, body):
    """A control's members by name: the first cells of its tables that hold code."""
    members = re.findall(r"<tr>\s*<td><code>(\w+)</code>", body)
    return [(f"{member} ({page})", f"{page}.html") for member in members]


def without_time(path):
    """The compiler writes the time into the header and into the system record; equal pages make equal files."""
    data = bytearray(path.read_bytes())
    data[0x10:0x14] = bytes(4)
    stamp = bytes([10, 0, 4, 0])  # the record of the time: its number and its length
    system = data.index(b"chmcmd") if b"chmcmd" in data else data.index(b"HHA Version")
    at = data.index(stamp, max(0, system - 512))
    data[at + 4 : at + 8] = bytes(4)
    path.write_bytes(data)


def compile_help(folder):
    """Runs the compiler with the folder as the root of its files: it writes a topic's page with its whole path, and
    readers look for that path in the help file."""
    compiler = shutil.which("chmcmd")
    if not compiler:
        sys.exit("help: there is no help compiler (chmcmd); tools/setup --dist installs it")
    mounts = ["-b", "/usr:/usr", "-b", "/usr/lib:/lib", "-b", "/usr/lib64:/lib64"]
    root = ["proot", "-r", str(folder.resolve()), *mounts, "-w", "/"]
    return subprocess.run([*root, str(pathlib.Path(compiler).resolve()), "quillet.xml"], capture_output=True, text=True)


def main(folder):
    shutil.rmtree(folder, ignore_errors=True)
    folder.mkdir(parents=True)
    shutil.copytree(DOCS / "pictures", folder / "pictures", ignore=shutil.ignore_patterns("*@2x.*"))
    files, contents, index = [], [], []
    for page, name, number in pages():
        title, body = html_of(page)
        (folder / f"{page}.html").write_text(PAGE.format(title=title, style=STYLE, body=body), encoding="utf-8")
        files.append((f"{page}.html", name, number))
        contents.append((title, f"{page}.html"))
        index += index_entries(page, body)
    # Readers take both for the text of their own code page: what is not ASCII is refused here.
    (folder / "quillet.hhc").write_text(sitemap(contents), encoding="ascii")
    (folder / "quillet.hhk").write_text(sitemap(sorted(index)), encoding="ascii")
    files += [(f"pictures/{path.name}", "", 0) for path in sorted((folder / "pictures").iterdir())]
    row = '    <FileName{} Value="{}" ContextName="{}" ContextNumber="{}"/>'
    rows = [row.format(number, *file) for number, file in enumerate(files)]
    (folder / "quillet.xml").write_text(
        PROJECT.format(count=len(files), files="\n".join(rows), start=START), encoding="utf-8"
    )
    done = compile_help(folder)
    chm = folder / "quillet.chm"
    if done.returncode or not chm.exists():
        sys.exit(f"help: the help compiler failed\n{done.stdout}{done.stderr}")
    without_time(chm)
    print(f"help: {chm}, {chm.stat().st_size // 1024} KiB, {len(contents)} pages")


main(pathlib.Path(sys.argv[1]))

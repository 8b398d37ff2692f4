#!/usr/bin/env python3
"""Makes the help file out of the manual's pages: help.py FOLDER. It comes out as FOLDER/quillet.chm.

The pages are those that the type library's help topics name, and the manual's start."""
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
pre { background: #f4f4f4; padding: 6px }"""

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


def topics():
    """The pages in the order of their numbers, with the name and number of each topic."""
    text = (ROOT / "src/typelib/HelpContexts.h").read_text(encoding="utf-8")
    found = re.findall(r"kHelp(\w+) = (\d+);", text)
    pages = {path.stem.lower(): path.stem for path in DOCS.glob("*.md")}
    return [(pages[name.lower()], f"HELP_{name.upper()}", int(number)) for name, number in found]


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
    shutil.copytree(DOCS / "pictures", folder / "pictures")
    files, contents, index = [], [], []
    for page, name, number in topics():
        title, body = html_of(page)
        (folder / f"{page}.html").write_text(PAGE.format(title=title, style=STYLE, body=body), encoding="utf-8")
        files.append((f"{page}.html", name, number))
        contents.append((title, f"{page}.html"))
        index += index_entries(page, body)
    (folder / "quillet.hhc").write_text(sitemap(contents), encoding="utf-8")
    (folder / "quillet.hhk").write_text(sitemap(sorted(index)), encoding="utf-8")
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
    print(f"help: {chm}, {chm.stat().st_size // 1024} KiB, {len(topics())} pages")


main(pathlib.Path(sys.argv[1]))

"""Builds the help from the topics beside this file: build.py OUT_FOLDER

OUT_FOLDER/Help/ gets the pages, OUT_FOLDER/expansion.htm the page about further models, and OUT_FOLDER/Zephra.hlp with
its contents, Zephra.cnt, the same text for the viewer of help files. Pandoc reads the topics, Halibut writes the file."""

import html
import json
import re
import shutil
import subprocess
import sys
import tempfile
from pathlib import Path

import halibut

HERE = Path(__file__).resolve().parent
PAGE = """<!DOCTYPE html>
<html lang="en">
<head>
<meta charset="utf-8">
<meta name="viewport" content="width=device-width, initial-scale=1">
<title>{title}</title>
<link rel="stylesheet" href="{folder}style.css">
</head>
<body>
<header><a href="{folder}index.htm">Zephra Help</a></header>
<div class="columns">
<nav aria-label="Topics">
<ul>
{topics}
</ul>
</nav>
<main>
<h1>{title}</h1>
{body}</main>
<footer>Zephra Help</footer>
</div>
</body>
</html>
"""


def pandoc(source, *options):
    return subprocess.run(["pandoc", "--from", "markdown-implicit_figures+smart", *options], input=source, check=True,
                          stdout=subprocess.PIPE, text=True, encoding="utf-8").stdout


class Topic:
    def __init__(self, file):
        self.source = file.read_text(encoding="utf-8")
        fields = dict(re.findall(r"^(\w+): (.+)$", self.source.split("---")[1], re.MULTILINE))
        self.title, self.name = fields["title"], fields["name"]

    def body(self, folder):
        """Topics name each other without an extension; pictures lie beside the pages."""
        body = pandoc(self.source, "--to", "html5")
        body = re.sub(r'href="([a-z]+)"', rf'href="{folder}\1.htm"', body)
        return re.sub(r'src="pictures/', f'loading="eager" src="{folder}pictures/', body)

    def tree(self):
        return json.loads(pandoc(self.source, "--to", "json"))["blocks"]


def page(topic, topics, folder=""):
    def entry(other):
        here = ' aria-current="page"' if other is topic else ""
        return f'<li><a href="{folder}{other.name}.htm"{here}>{html.escape(other.title)}</a></li>'

    return PAGE.format(title=html.escape(topic.title), folder=folder, topics="\n".join(map(entry, topics)),
                       body=topic.body(folder))


def write_pages(topics, target):
    folder = target / "Help"
    shutil.rmtree(folder, ignore_errors=True)
    folder.mkdir(parents=True)
    for topic in topics:
        (folder / f"{topic.name}.htm").write_text(page(topic, topics), encoding="utf-8")
    shutil.copy(HERE / "style.css", folder)
    shutil.copytree(HERE / "pictures", folder / "pictures")
    expansion = next(topic for topic in topics if topic.name == "expansion")
    (target / "expansion.htm").write_text(page(expansion, topics, "Help/"), encoding="utf-8")


def without_time(help_file):
    """The file without the time of its making: the same text gives the same bytes, and nothing is packed anew."""
    mark = b"\x6c\x03\x21\x00\x01\x00"  # the beginning of the part that describes the file; the time is next
    if help_file.count(mark) != 1:
        raise ValueError("the help file is not built as expected")
    start = help_file.index(mark) + len(mark)
    return help_file[:start] + bytes(4) + help_file[start + 4:]


def write_help_file(topics, target):
    with tempfile.TemporaryDirectory() as folder:
        text = Path(folder) / "help.but"
        text.write_text(halibut.document("Zephra Help", topics), encoding="utf-8")
        subprocess.run(["halibut", "--winhelp=Zephra.hlp", text.name], cwd=folder, check=True)
        (target / "Zephra.hlp").write_bytes(without_time((Path(folder) / "Zephra.hlp").read_bytes()))
        shutil.copy(Path(folder) / "Zephra.cnt", target)


def main():
    target = Path(sys.argv[1])
    target.mkdir(parents=True, exist_ok=True)
    topics = [Topic(file) for file in sorted(HERE.glob("*.md"))]
    write_pages(topics, target)
    write_help_file(topics, target)


if __name__ == "__main__":
    main()

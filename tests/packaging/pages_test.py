"""The pages of a packed folder, read as a browser does: every link, picture and anchor leads to
something in the folder, no Markdown is left, and the tables are tables.

    pages_test.py FOLDER
"""
import html.parser
import pathlib
import sys
import urllib.parse


class Page(html.parser.HTMLParser):
    def __init__(self, path):
        super().__init__()
        self.links, self.names, self.open, self.text, self.tables = [], set(), [], [], 0
        self.all_text, self.headings = "", []
        self.feed(path.read_text(encoding="utf-8"))

    def handle_starttag(self, tag, attributes):
        values = dict(attributes)
        self.links += [values[name] for name in ("href", "src") if name in values]
        self.names.add(values.get("id"))
        self.tables += tag == "table"
        if tag == "th":
            self.headings.append("")
        self.open.append(tag)

    def handle_endtag(self, tag):
        while self.open and self.open.pop() != tag:
            pass

    def handle_data(self, data):
        self.all_text += data
        if "th" in self.open:
            self.headings[-1] += data
        if not {"pre", "code", "style"} & set(self.open):
            self.text.append(data)


folder = pathlib.Path(sys.argv[1])
pages = {path.resolve(): Page(path) for path in sorted((folder / "docs").glob("*.html"))}
faults, links = [], 0
for path, page in pages.items():
    for link in page.links:
        parts = urllib.parse.urlparse(link)
        if parts.scheme:
            continue
        links += 1
        target = (path.parent / parts.path).resolve() if parts.path else path
        if not target.exists() or not target.is_relative_to(folder.resolve()):
            faults.append(f"{path.name}: {link} leads nowhere")
        elif parts.fragment and parts.fragment not in pages[target].names:
            faults.append(f"{path.name}: there is no #{parts.fragment} in {target.name}")
    if not all(heading.strip() for heading in page.headings):
        faults.append(f"{path.name}: a column without a heading")
    # A shell of Windows knows no single quotes; the rest is for whoever packs.
    faults += [f"{path.name}: {word} is not for this reader"
               for word in ("VERSION", "zcat", "export ", "calvex batch plant.csv '", "-u '")
               if word in page.all_text]
    text = "".join(page.text)
    faults += [f"{path.name}: {mark} is left of the Markdown" for mark in ("](", "**", "\n|", "\n# ", "\n## ", ".md")
               if mark in text]
reached = {(path.parent / urllib.parse.urlparse(link).path).resolve()
           for path, page in pages.items() for link in page.links}
faults += [f"nothing leads to {path.name}" for path in pages if path not in reached]
if len(pages) < 5 or links < 20 or sum(page.tables for page in pages.values()) < 10:
    faults.append(f"only {len(pages)} pages, {links} links")
for fault in faults:
    print(fault)
print(f"pages: {len(pages)}, {links} links")
sys.exit(bool(faults))

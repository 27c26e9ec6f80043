"""The topics as one text in Halibut's language. Help files of that kind show text only: pictures are left out."""


def _plain(text):
    return "".join("\\" + c if c in "\\{}" else c for c in text)


def _inline(parts):
    return "".join(map(_part, parts))


def _part(part):
    kind, content = part["t"], part.get("c")
    if kind == "Str":
        return _plain(content)
    if kind in ("Space", "SoftBreak", "LineBreak"):
        return " "
    if kind == "Strong":
        return "\\s{" + _inline(content) + "}"
    if kind == "Emph":
        return "\\e{" + _inline(content) + "}"
    if kind == "Code":
        return "\\c{" + _plain(content[1]) + "}"
    if kind == "Quoted":
        return "\\q{" + _inline(content[1]) + "}"
    if kind == "Link":
        return _inline(content[1]) + " (\\k{" + content[2][0] + "})"
    if kind == "Image":
        return ""
    raise ValueError(f"no way to write {kind}")


def _paragraphs(blocks):
    """Each with its mark; a list is a row of paragraphs with a mark of their own."""
    for block in blocks:
        kind, content = block["t"], block.get("c")
        if kind in ("Para", "Plain"):
            text = _inline(content).strip()
            if text:
                yield text
        elif kind == "Header":
            yield "\\S{" + content[1][0] + "} " + _inline(content[2])
        elif kind == "BulletList":
            yield from ("\\b " + " ".join(_paragraphs(item)) for item in content)
        elif kind == "OrderedList":
            yield from ("\\n " + " ".join(_paragraphs(item)) for item in content[1])
        elif kind == "DefinitionList":
            for term, definitions in content:
                yield "\\dt " + _inline(term)
                yield from ("\\dd " + " ".join(_paragraphs(definition)) for definition in definitions)
        elif kind == "CodeBlock":
            yield "\n".join("\\c " + line for line in content[1].splitlines())
        else:
            raise ValueError(f"no way to write {kind}")


def document(title, topics):
    """Sections are named after their topic, since each topic names its own."""
    lines = [f"\\title {title}", "\\cfg{chapter}{Topic}", "\\cfg{winhelp-filename}{Zephra.hlp}"]
    for topic in topics:
        lines.append("\\C{" + topic.name + "} " + _plain(topic.title))
        for paragraph in _paragraphs(topic.tree()):
            lines.append(paragraph.replace("\\S{", "\\H{" + topic.name + "-"))
    return "\n\n".join(lines) + "\n"

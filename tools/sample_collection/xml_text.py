"""An indented XML text in the shape of a collection file."""


def escape(text):
    text = str(text).replace("&", "&amp;").replace("<", "&lt;").replace(">", "&gt;")
    return text.replace('"', "&quot;").replace("'", "&apos;")


def shown(value):
    if isinstance(value, bool):
        return "true" if value else "false"
    return escape(value)


class XmlText:
    def __init__(self):
        self.lines = []
        self.depth = 0

    def line(self, text):
        self.lines.append("  " * self.depth + text)

    def element(self, name, value="", **attributes):
        marks = "".join(f' {key}="{shown(val)}"' for key, val in attributes.items())
        text = shown(value)
        self.line(f"<{name}{marks}>{text}</{name}>" if text else f"<{name}{marks}/>")

    def group(self, name, write=None, **attributes):
        """An element whose children `write` makes; written short where it makes none."""
        marks = "".join(f' {key}="{shown(val)}"' for key, val in attributes.items())
        self.line(f"<{name}{marks}>")
        start = len(self.lines)
        self.depth += 1
        if write:
            write()
        self.depth -= 1
        if len(self.lines) == start:
            self.lines[-1] = "  " * self.depth + f"<{name}{marks}/>"
        else:
            self.line(f"</{name}>")

    def list(self, name, child, values):
        self.group(name, lambda: [self.element(child, value) for value in values])

    def save(self, path, encoding, newline="\r\n"):
        text = "\n".join(self.lines) + "\n"
        path.write_bytes(text.replace("\n", newline).encode(encoding))

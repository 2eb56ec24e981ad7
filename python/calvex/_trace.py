"""The record of calls."""
import html

KINDS = ("error", "warning", "note", "call", "external error")  # as the extension numbers them
_COLOURS = {"error": "#c62828", "external error": "#c62828", "warning": "#b26a00",
            "note": "#607d8b"}


class Trace:
    """Calls that left messages, each with what it called and what was said: `nodes` has (depth,
    text, kind) of each, a child after its parent; kinds are those of the gravest message below."""

    def __init__(self, nodes):
        self.nodes = [(depth, text, KINDS[kind]) for depth, text, kind in nodes]

    def __len__(self):
        """How many outermost calls there are."""
        return sum(depth == 0 for depth, _, _ in self.nodes)

    def __str__(self):
        return "\n".join("  " * depth + text for depth, text, _ in self.nodes)

    def __repr__(self):
        return str(self) or "<empty trace>"

    def _repr_html_(self):
        parts, open_at = [], 0
        for i, (depth, text, kind) in enumerate(self.nodes):
            parts.append("</ul></details></li>" * (open_at - depth))
            open_at = depth
            style = f" style='color:{_COLOURS[kind]}'" if kind in _COLOURS else ""
            line = f"<span{style} title='{kind}'>{html.escape(text)}</span>"
            if i + 1 < len(self.nodes) and self.nodes[i + 1][0] > depth:
                parts.append(f"<li><details open><summary>{line}</summary><ul>")
                open_at = depth + 1
            else:
                parts.append(f"<li>{line}</li>")
        parts.append("</ul></details></li>" * open_at)
        return f"<ul class='calvex-trace'>{''.join(parts)}</ul>"

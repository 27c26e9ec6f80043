"""Which drawings make up which bitmap of the toolbar's resource file, and where in it each of them lies."""
import json
import re
import subprocess

import png


# A greyed drawing keeps its shape and loses its colours and half of its weight.
GREY = ('<filter id="grey" color-interpolation-filters="sRGB"><feColorMatrix type="matrix" values="'
        '0.15 0.29 0.06 0 0.40 0.15 0.29 0.06 0 0.42 0.15 0.29 0.06 0 0.45 0 0 0 0.75 0"/></filter>')


def varied(drawing, turned=0, grey=False):
    """The drawing turned clockwise about its middle by so many degrees, and greyed."""
    head, body, tail = re.fullmatch(r"(<svg[^>]*>)(.*)(</svg>\s*)", drawing, re.DOTALL).groups()
    body = f'<g transform="rotate({turned} 11.5 11)">{body}</g>'
    return head + (f'{GREY}<g filter="url(#grey)">{body}</g>' if grey else body) + tail


class Strips:
    def __init__(self, folder):
        self.folder = folder
        table = json.loads((folder / "strips.json").read_text())
        self.icon_size = tuple(table["iconSize"])
        self.scales = table["scales"]
        strips = table["strips"]
        self.variants = table["variants"]
        self.bitmaps = {name: self.placed(strips[content] if isinstance(content, str) else content)
                        for name, content in table["bitmaps"].items()}

    def placed(self, content):
        """The icons of a bitmap as (icon, left, top): a list of them lies side by side, a single one where it says."""
        if isinstance(content, dict):
            return [(content["icon"], *content["at"])]
        return [(icon, self.icon_size[0] * index, 0) for index, icon in enumerate(content)]

    def icons(self):
        return sorted({icon for content in self.bitmaps.values() for icon, _, _ in content})

    def drawing(self, icon):
        variant = dict(self.variants.get(icon, {}))
        text = (self.folder / "icons" / f"{variant.pop('of', icon)}.svg").read_text()
        return varied(text, **variant) if variant else text

    def scaled(self, value, scale):
        return value * scale // 100

    def variant_name(self, bitmap, scale):
        return bitmap if scale == 100 else f"{bitmap}@{scale}"

    def rasterise(self, icon, scale):
        """The drawing at its exact size in pixels, so that it is drawn for these pixels and not stretched to them."""
        width, height = (self.scaled(side, scale) for side in self.icon_size)
        command = ["rsvg-convert", "--width", str(width), "--height", str(height)]
        drawn = subprocess.run(command, input=self.drawing(icon).encode(), check=True, capture_output=True).stdout
        drawn_width, drawn_height, rows = png.decode(drawn)
        if (drawn_width, drawn_height) != (width, height):
            raise ValueError(f"{icon}: drawn at {drawn_width} x {drawn_height}, wanted {width} x {height}")
        return rows

    def compose(self, content, scale, pictures):
        """One bitmap, as large as its icons need, each at its unscaled place times the scale."""
        width, height = (max(corner[side] + self.icon_size[side] for _, *corner in content) for side in (0, 1))
        rows = [bytearray(self.scaled(width, scale) * 4) for _ in range(self.scaled(height, scale))]
        for icon, left, top in content:
            start = self.scaled(left, scale) * 4
            for row, drawn in zip(rows[self.scaled(top, scale) :], pictures[icon, scale]):
                row[start : start + len(drawn)] = drawn
        return rows

    def all_bitmaps(self):
        pictures = {(icon, scale): self.rasterise(icon, scale) for icon in self.icons() for scale in self.scales}
        return {self.variant_name(name, scale): self.compose(content, scale, pictures)
                for name, content in self.bitmaps.items() for scale in self.scales}

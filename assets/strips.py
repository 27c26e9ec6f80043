"""Which drawings make up which bitmap of the toolbar's resource file, and where in it each of them lies."""
import json
import subprocess

import png


class Strips:
    def __init__(self, folder):
        self.folder = folder
        table = json.loads((folder / "strips.json").read_text())
        self.icon_size = tuple(table["iconSize"])
        self.scales = table["scales"]
        strips = table["strips"]
        self.bitmaps = {name: strips[icons] if isinstance(icons, str) else icons
                        for name, icons in table["bitmaps"].items()}

    def scaled(self, value, scale):
        return value * scale // 100

    def variant_name(self, bitmap, scale):
        return bitmap if scale == 100 else f"{bitmap}@{scale}"

    def rasterise(self, icon, scale):
        """The drawing at its exact size in pixels, so that it is drawn for these pixels and not stretched to them."""
        width, height = (self.scaled(side, scale) for side in self.icon_size)
        command = ["rsvg-convert", "--width", str(width), "--height", str(height), str(self.folder / "icons" / f"{icon}.svg")]
        drawn_width, drawn_height, rows = png.decode(subprocess.run(command, check=True, capture_output=True).stdout)
        if (drawn_width, drawn_height) != (width, height):
            raise ValueError(f"{icon}: drawn at {drawn_width} x {drawn_height}, wanted {width} x {height}")
        return rows

    def compose(self, icons, scale, pictures):
        """One bitmap: the icons side by side, each at its unscaled place times the scale."""
        icon_width, icon_height = self.icon_size
        width = self.scaled(icon_width * len(icons), scale)
        rows = [bytearray(width * 4) for _ in range(self.scaled(icon_height, scale))]
        for index, icon in enumerate(icons):
            left = self.scaled(icon_width * index, scale) * 4
            for row, drawn in zip(rows, pictures[icon, scale]):
                row[left : left + len(drawn)] = drawn
        return rows

    def all_bitmaps(self):
        icons = sorted({icon for icons in self.bitmaps.values() for icon in icons})
        pictures = {(icon, scale): self.rasterise(icon, scale) for icon in icons for scale in self.scales}
        return {self.variant_name(name, scale): self.compose(icons, scale, pictures)
                for name, icons in self.bitmaps.items() for scale in self.scales}

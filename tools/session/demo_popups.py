"""The part of the demonstration that opens what hangs below the toolbar's buttons, and chooses in it. The model is drawn
in a style that has surfaces and lines, and it has an animation."""

import time

from session import desktop
from session.probe import wait_for


def choose(tour, popup, name, expected):
    desktop.click(tour.place_in(popup, name))
    return tour.host.wait_for_call(expected)


def colors(tour):
    palette = tour.open_popup("Background Options")
    desktop.move(tour.place_in(palette, "Pale Blue"))
    tour.show("Open the colours of the background")
    tour.show("Choose pale blue", choose(tour, palette, "Pale Blue", "let BackgroundColor"))

    palette = tour.open_popup("Fill Color")
    desktop.move(tour.place_in(palette, "Orange"))
    tour.show("Open the colours of the surfaces")
    tour.show("Choose orange", choose(tour, palette, "Orange", "let SurfaceColor"))

    palette = tour.open_popup("Line Color")
    desktop.move(tour.place_in(palette, "Dark Blue"))
    tour.show("Open the colours of the lines")
    tour.show("Choose dark blue", choose(tour, palette, "Dark Blue", "let LineColor"))


def more_colors(tour):
    palette = tour.open_popup("Fill Color")
    desktop.click(tour.place_in(palette, "More Colors"))
    dialog = tour.probe.window("Color")
    tour.show("Ask for more colours: the system's own dialog", settle=0.6)
    left, top, _, _ = dialog["rect"]
    desktop.click((left + 44, top + 50))  # pale yellow
    desktop.key("Return")
    tour.show("Choose one there", tour.host.wait_for_call("let SurfaceColor"))
    palette = tour.open_popup("Fill Color")
    tour.show("The palette remembers it among the recent colours")
    tour.show("Go back to the style's own colour",
              choose(tour, palette, "LookStyle Default", "RestoreDefaultSurfaceColor"))


def thickness(tour):
    lines = tour.open_popup("Line Thickness")
    desktop.move(tour.place_in(lines, "Thick"))
    tour.show("Open the thicknesses of lines")
    tour.show("Draw thick lines", choose(tour, lines, "Thick", "let LineThicknessScale"))


def lighting(tour):
    lamps = tour.open_popup("Lighting")
    desktop.move(tour.place_in(lamps, "Light from right"))
    tour.show("Open the lamps: the cube previews the one below the pointer")
    tour.show("Light the model from the right", choose(tour, lamps, "Light from right", "SetLightDirection"))
    tour.show("Switch the light off", choose(tour, lamps, "Turn the light off", "let LightIsOn"))
    tour.show("Switch it on again", choose(tour, lamps, "Turn the light on", "let LightIsOn"))
    tour.show("Light the model from the upper left",
              choose(tour, lamps, "Light from upper left", "SetLightDirection"))
    desktop.key("Escape")
    wait_for(lambda: not tour.popups(), what="the lamps to go")


def animation(tour):
    playback = tour.open_popup("Animation Playback")
    tour.show("Open the playback of the animation")
    calls = choose(tour, playback, "Play", "let AnimationState")
    time.sleep(0.5)
    tour.show("Play", calls)
    tour.show("Pause", choose(tour, playback, "Pause", "let AnimationState"))
    tour.show("Step to the next frame", choose(tour, playback, "Next Frame", "AnimationIncrementFrame"))
    desktop.click(tour.place_in(playback, "Frame number"), count=2)
    desktop.key("ctrl+a")
    desktop.type_text("24")
    desktop.key("Return")
    tour.show("Type a frame", tour.host.wait_for_call("let AnimationCurrentFrame"))
    tour.show("Let it repeat", choose(tour, playback, "Single Playback", "let AnimationLoopState"))


def run(tour):
    colors(tour)
    more_colors(tour)
    thickness(tour)
    lighting(tour)
    animation(tour)

"""The part of the demonstration that opens what hangs below the toolbar's buttons, and chooses in it. The model is drawn
in a style that has surfaces and lines, and it has an animation."""

import time

from session import desktop
from session.probe import wait_for


def hover(tour, popup, name):
    place = tour.place_in(popup, name)
    desktop.move(place)
    return place


def choose_color(tour, button, what, color, member):
    place = hover(tour, tour.open_popup(button), color)
    tour.show(f"Open the colours of {what}")
    tour.show(f"Choose {color.lower()}", tour.choose(place, f"let {member}"))


def more_colors(tour):
    palette = tour.open_popup("Fill Color")
    desktop.click(tour.place_in(palette, "More Colors"))
    dialog = tour.probe.window("Color")
    tour.show("Ask for more colours: the system's own dialog", settle=0.6)
    left, top, _, _ = dialog["rect"]
    desktop.click((left + 44, top + 50))  # a pale yellow
    desktop.key("Return")
    tour.show("Choose one there", tour.host.wait_for_call("let SurfaceColor"))
    palette = tour.open_popup("Fill Color")
    tour.show("The palette remembers it among the recent colours")
    default = tour.place_in(palette, "LookStyle Default")
    tour.show("Go back to the style's own colour", tour.choose(default, "RestoreDefaultSurfaceColor"))


def thickness(tour):
    place = hover(tour, tour.open_popup("Line Thickness"), "Thick")
    tour.show("Open the thicknesses of lines")
    tour.show("Draw thick lines", tour.choose(place, "let LineThicknessScale"))


def lighting(tour):
    lamps = tour.open_popup("Lighting")
    switch, before = (tour.place_in(lamps, name) for name in ("Turn the light off", "Light from upper left"))
    lamp = hover(tour, lamps, "Light from right")
    tour.show("Open the lamps: the cube previews the one below the pointer")
    tour.show("Light the model from the right", tour.choose(lamp, "SetLightDirection"))
    tour.show("Switch the light off", tour.choose(switch, "let LightIsOn"))
    tour.show("Switch it on again", tour.choose(switch, "let LightIsOn"))
    tour.show("Light the model from the upper left", tour.choose(before, "SetLightDirection"))
    desktop.key("Escape")
    wait_for(lambda: not tour.popups(), what="the lamps to go")


def animation(tour):
    playback = tour.open_popup("Animation Playback")
    names = ("Play", "Next Frame", "Frame number", "Single Playback")
    play, step, frame, mode = (tour.place_in(playback, name) for name in names)
    tour.show("Open the playback of the animation", tour.host.wait_for_call("let AnimationState"))
    calls = tour.choose(play, "let AnimationState")
    time.sleep(0.5)
    tour.show("Play", calls)
    tour.show("Pause", tour.choose(play, "let AnimationState"))
    tour.show("Step to the next frame", tour.choose(step, "AnimationIncrementFrame"))
    desktop.click(frame, count=2)
    desktop.key("ctrl+a")
    desktop.type_text("24")
    desktop.key("Return")
    tour.show("Type a frame", tour.host.wait_for_call("let AnimationCurrentFrame"))
    tour.show("Let it play only once", tour.choose(mode, "let AnimationLoopState"))


def run(tour):
    choose_color(tour, "Background Options", "the background", "Pale Blue", "BackgroundColor")
    choose_color(tour, "Fill Color", "the surfaces", "Orange", "SurfaceColor")
    choose_color(tour, "Line Color", "the lines", "Dark Blue", "LineColor")
    more_colors(tour)
    thickness(tour)
    lighting(tour)
    animation(tour)

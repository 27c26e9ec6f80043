"""Driving the real program on a (virtual) display: real mouse and keyboard, eyes by accessibility and screenshots."""

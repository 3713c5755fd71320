"""Drives the program from outside, as a person does: a screen, a mouse, a keyboard and what can be read."""

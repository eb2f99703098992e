# SPDX-License-Identifier: MIT
"""Values for every setting of the table."""

# A value of each setting that is not its default, and that every machine can draw.
OTHER_VALUES = {
    "boolean": True,
    "whole": 3,
    "real": 0.5,
    "text": "x",
    "color": "#112233",
    "picture_color": "transparent",
    "palette": ["#112233", "#445566"],
    "locale": "de_AT",
    "axis_properties": ["labels"],
    "position": (60, 200),
    "link": "rest.html",
}


def other_value(setting):
    """A value that is not the default."""
    return setting.choices[-1] if setting.type == "choice" else OTHER_VALUES[setting.type]

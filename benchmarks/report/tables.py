# SPDX-License-Identifier: MIT
"""Tables that read well on a terminal and in Markdown."""


def print_table(title, header, rows):
    """The first column is text, the others are figures."""
    cells = [[str(cell) for cell in row] for row in [header, *rows]]
    widths = [max(len(row[i]) for row in cells) for i in range(len(header))]
    print(f"\n### {title}\n")
    print_row(cells[0], widths)
    print("|" + "|".join("-" * (width + 1) + (":" if i else "-")
                         for i, width in enumerate(widths)) + "|")
    for row in cells[1:]:
        print_row(row, widths)


def print_row(row, widths):
    texts = [cell.rjust(width) if i else cell.ljust(width)
             for i, (cell, width) in enumerate(zip(row, widths))]
    print("| " + " | ".join(texts) + " |")


def significant(value):
    """Three figures: 1.23, 12.3, 123."""
    if value < 10:
        return f"{value:.2f}"
    return f"{value:.1f}" if value < 100 else f"{value:.0f}"

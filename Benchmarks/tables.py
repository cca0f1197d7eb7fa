"""Figures as people read them."""


def table(title, rows):
    """Prints rows of texts, the first of which are the headings: words to the left, figures to the right."""
    widths = [max(len(row[column]) for row in rows) for column in range(len(rows[0]))]
    print(f"\n{title}")
    for row in rows:
        first, *others = (
            cell.ljust(width) if column == 0 else cell.rjust(width)
            for column, (cell, width) in enumerate(zip(row, widths))
        )
        print("  " + "   ".join([first, *others]).rstrip())


def verdict(ratio, bound):
    if bound is None:
        return "-"
    return f"{bound:.2f} {'met' if ratio <= bound else 'MISSED'}"


def ratio_row(what, unit, ours, theirs, required, aim):
    """A row of figures in a unit, and whether the required ratio is met."""
    ratio = ours / theirs
    row = (f"{what}, {unit}", f"{ours:.1f}", f"{theirs:.1f}", f"{ratio:.2f}", verdict(ratio, required),
           verdict(ratio, aim))
    return row, required is None or ratio <= required

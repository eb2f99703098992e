# SPDX-License-Identifier: MIT
# Times gnuplot's charts, from a data file to a picture, in one process:
# gnuplot -c gnuplot.gp TERMINAL KIND DATA WIDTH HEIGHT FACTOR ROUNDS PICTURE
# TERMINAL is png (the gd library), pngcairo, svg or pdfcairo. Prints what every measuring program prints.
terminal_name = ARG1
kind = ARG2
data = ARG3
width = int(ARG4)
height = int(ARG5)
factor = int(ARG6)
rounds = int(ARG7)
picture = ARG8

# The gd terminal keeps a palette, which is its fastest form. 8.25 points are 11 pixels.
if (terminal_name eq "png") { set terminal png size width * factor, height * factor }
if (terminal_name eq "pngcairo") { set terminal pngcairo size width * factor, height * factor }
if (terminal_name eq "svg") { set terminal svg size width, height }
if (terminal_name eq "pdfcairo") { set terminal pdfcairo size width / 72.0, height / 72.0 }
set termoption noenhanced
set termoption font "DejaVu Sans,8.25"
# An SVG picture counts in pixels.
if (terminal_name eq "svg") { set termoption font "DejaVu Sans,11" }
set termoption fontscale factor
set termoption linewidth factor

array fill[6] = [0x17347c, 0x5b73b0, 0xaebfea, 0xfe660d, 0xfeb86d, 0xffe2b6]
array outline[6] = [0x0f2252, 0x3c4c75, 0x747f9c, 0xa94408, 0xa97a48, 0xaa9679]
fill_of(i) = fill[int(i) % 6 + 1]
outline_of(i) = outline[int(i) % 6 + 1]
set linetype 1 linecolor rgb "black" linewidth 1
set key off
set border linewidth 1
set style fill solid noborder
set tics scale 0 nomirror
set datafile separator "\t"

# The data is read before the rounds, as in the other programs.
array value[100]
array caption[100]
total = 0
stats data using (value[int($0) + 1] = $1, total = total + $1, $1) nooutput name "values"
stats data using (caption[int($0) + 1] = strcol(2), 0) nooutput name "captions"
items = int(values_records)

# Fractions of the picture, as this library lays its charts out.
if (kind eq "bars") {
    turned = width > 800
    set lmargin at screen 37.0 / width
    set rmargin at screen 1 - 10.0 / width
    set tmargin at screen 1 - 17.0 / height
    bottom = turned ? 62.0 : 29.0
    set bmargin at screen bottom / height
    set border 3
    set xrange [-0.75 : items - 0.25]
    set yrange [0:800]
    set ytics 200 offset 0.5, 0
    x_pixel = (items + 0.5) / (width - 47)
    y_pixel = 800.0 / (height - bottom - 17)
    do for [i = 1 : 4] {
        set object i rectangle from graph 0, first 200 * i - y_pixel to graph 1, first 200 * i \
            back fillcolor rgb "#b3becc" fillstyle solid noborder
    }
    if (turned) { set xtics rotate by 90 right offset 0, 0.3 } else { set xtics offset 0, 0.3 }
}
if (kind eq "hbars") {
    set lmargin at screen 77.0 / width
    set rmargin at screen 1 - 10.0 / width
    set tmargin at screen 1 - 11.0 / height
    set bmargin at screen 10.0 / height
    set border 6
    set xrange [0:828]
    set yrange [items - 0.35 : -0.65]
    x_pixel = 828.0 / (width - 87)
    y_pixel = (items + 0.3) / (height - 21)
    unset xtics
    set ytics offset 0.5, 0
}
if (kind eq "pie") {
    unset border
    unset tics
    set margins 0, 0, 0, 0
    # One unit is one pixel, and the pie's centre is the origin.
    set xrange [-width / 2.0 : width / 2.0]
    set yrange [-height / 2.0 : height / 2.0]
    set angles degrees
    ring = height / 2.0 - 18
    set style fill solid border rgb "white"
    set style arrow 1 nohead linecolor rgb "black" dashtype (1, 3)
    set style arrow 2 nohead linecolor rgb "black"
}

# One slice: its sector, the beam and the line that lead to its label, and the label.
slice = '\
    span = 360.0 * value[i] / total; \
    set object i circle at 0, 0 size 0.87 * ring arc [from - span : from] \
        fillcolor rgb (fill_of(i - 1)); \
    middle = from - span / 2; \
    side = cos(middle) >= 0 ? 1 : -1; \
    x = ring * cos(middle); y = ring * sin(middle); \
    set arrow 2 * i from 0.74 * x, 0.74 * y to x, y arrowstyle 1 front; \
    set arrow 2 * i + 1 from x, y to x + side * 18, y arrowstyle 2 front; \
    words = sprintf("%s [%d MB]", caption[i], value[i] / 1048576); \
    if (side > 0) { set label i words at x + 21, y left front } \
    else { set label i words at x - 21, y right front }; \
    from = from - span'

first_done = 0
array times[rounds]
do for [round = 1 : rounds] {
    start = time(0.0)
    set output picture
    # A bar is a box in its outline's colour and a smaller one in its own, one line's width inside:
    # for the gd terminal that is six times as fast as drawing thick lines.
    if (kind eq "bars") {
        plot data using 0:(0):($0 - 0.35):($0 + 0.35):(0):1:(outline_of($0)):xticlabels(2) \
                 with boxxyerror linecolor rgb variable, \
             data using 0:(0):($0 - 0.35 + x_pixel):($0 + 0.35 - x_pixel):(0):($1 - y_pixel): \
                 (fill_of($0)) with boxxyerror linecolor rgb variable
    }
    if (kind eq "hbars") {
        plot data using (0):0:(0):1:($0 - 0.35):($0 + 0.35):(outline_of($0)):yticlabels(2) \
                 with boxxyerror linecolor rgb variable, \
             data using (0):0:(0):($1 - x_pixel):($0 - 0.35 + y_pixel):($0 + 0.35 - y_pixel): \
                 (fill_of($0)) with boxxyerror linecolor rgb variable, \
             data using 1:0:1 with labels left offset 1, 0
    }
    if (kind eq "pie") {
        from = 180.0
        do for [i = 1 : items] { eval slice }
        plot NaN
    }
    set output
    times[round] = 1000 * (time(0.0) - start)
    if (round == 1) { first_done = time(0.0) }
}

set print "-"
print sprintf("first %.6f", first_done)
do for [round = 1 : rounds] { print sprintf("%.4f", times[round]) }

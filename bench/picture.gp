# SPDX-License-Identifier: Apache-2.0
# Draws the bars that tpx_bench writes: two columns of them on logarithmic axes, from 1, where both are equally fast.
#   gnuplot -e "data='bars.tsv'; png='benchmark.png'; subtitle='...'" bench/picture.gp
# A line of the data is: row, ratio, colour, what was run; a heading has no ratio.
unit = 14.0; head = 96.0; foot = 30.0; width = 1240.0
set datafile separator "\t"
array title[2] = ['Resizes and Fourier transforms beside other libraries', \
                  '1920x1080 pixels beside copying (or reading) as many bytes']
array first[2] = [0.235, 0.745]
array last[2] = [0.475, 0.985]

stats data index 0 using 1:2 name 'left' nooutput
stats data index 1 using 1:2 name 'right' nooutput
rows = (left_max_x > right_max_x ? left_max_x : right_max_x) + 1
array least[2] = [left_min_y, right_min_y]
array most[2] = [left_max_y, right_max_y]
height = head + unit * rows + foot
figure(x) = x < 0.1 ? sprintf('%.3f', x) : x < 10 ? sprintf('%.2f', x) : sprintf('%.0f', x)

set terminal pngcairo noenhanced size width, height font 'DejaVu Sans,9' background '#ffffff'
set output png
set multiplot
set label 1 'libtpxie9: how many times faster, 1 is equal' font 'DejaVu Sans Bold,15' at screen 0.012, screen 1 - 24 / height
set label 2 subtitle tc rgb '#555555' at screen 0.012, screen 1 - 46 / height
set label 3 '■ zimg' tc rgb '#2f7040' at screen 0.235, screen 1 - 86 / height
set label 4 '■ libyuv' tc rgb '#e6842a' at screen 0.29, screen 1 - 86 / height
set label 5 '■ libyuv, other ways' tc rgb '#e0b080' at screen 0.35, screen 1 - 86 / height
set label 6 '■ OpenCV' tc rgb '#a63d40' at screen 0.465, screen 1 - 86 / height
set label 8 '■ FFTW' tc rgb '#7b4ea7' at screen 0.525, screen 1 - 86 / height
set style fill solid 1.0 noborder
set border 0
set tics scale 0
unset ytics
unset key
set logscale x 10
set xtics (0.01, 0.1, 0.2, 0.5, 1, 2, 5, 10, 20) tc rgb '#555555'
set grid xtics lt 1 lc rgb '#d8d8d8' lw 0.8
set arrow 1 from first 1, graph 0 to first 1, graph 1 nohead lc rgb '#444444' lw 1.5 front
set tmargin at screen 1 - head / height
set bmargin at screen foot / height
set yrange [rows:0]
do for [c = 1:2] {
    set lmargin at screen first[c]
    set rmargin at screen last[c]
    set label 7 title[c] font 'DejaVu Sans Bold,10' at screen first[c] - 0.22, screen 1 - 70 / height
    low = (least[c] < 0.5 ? least[c] : 0.5) / 2.4
    high = (most[c] > 2 ? most[c] : 2) * 1.6
    set xrange [low:high]
    plot data index c - 1 using 2:1:($2 < 1 ? $2 : 1):($2 < 1 ? 1 : $2):($1 - 0.42):($1 + 0.42):3 \
             with boxxyerror lc rgb variable, \
         '' index c - 1 using ($2 < 1 ? $2 : NaN):1:(figure($2)) with labels right offset -0.4, 0 font ',8', \
         '' index c - 1 using ($2 < 1 ? NaN : $2):1:(figure($2)) with labels left offset 0.4, 0 font ',8', \
         '' index c - 1 using (valid(2) ? low : NaN):1:4 with labels right offset -0.5, 0, \
         '' index c - 1 using (valid(2) ? NaN : low):1:4 with labels right offset -0.5, 0 font 'DejaVu Sans Bold,9'
    unset for [i = 1:8] label i
}
unset multiplot

# fish completion for tovangl-chart
set -l charts pie bars hbars
set -l any "__fish_seen_subcommand_from $charts"
set -l pie '__fish_seen_subcommand_from pie'
set -l bars '__fish_seen_subcommand_from bars hbars'
set -l upright '__fish_seen_subcommand_from bars'
set -l axis 'line labels title bold-labels bold-title prefixes hide-overlapped shift-last none'

complete -c tovangl-chart -n "not $any" -f -a pie -d 'A pie'
complete -c tovangl-chart -n "not $any" -f -a bars -d 'Vertical bars'
complete -c tovangl-chart -n "not $any" -f -a hbars -d 'Horizontal bars'
complete -c tovangl-chart -n "not $any" -l version -d 'Show the version'
complete -c tovangl-chart -s h -l help -d 'Show the help'

complete -c tovangl-chart -n $any -s o -l output -r -F -d 'Write the picture here'
complete -c tovangl-chart -n $any -l map -r -F -d 'Write where each item was drawn'
complete -c tovangl-chart -n $any -l size -x -a 800x600 -d 'Size of the picture'
complete -c tovangl-chart -n $any -l print -x -d 'Draw for print'
complete -c tovangl-chart -n $any -l font -x -d 'Font family'
complete -c tovangl-chart -n $any -l font-size -x -d 'Font size in pixels'
complete -c tovangl-chart -n $any -l locale -x -d 'Number format'
complete -c tovangl-chart -n $any -l threshold -x -d 'Leave out smaller shares'
complete -c tovangl-chart -n $any -l background -d 'Paint a gradient behind the chart'
complete -c tovangl-chart -n $any -l fast -d 'Save faster, in a larger file'
complete -c tovangl-chart -n $any -l text-color -x -d 'Colour of the captions'

complete -c tovangl-chart -n $pie -l bold -d 'Captions in bold type'
complete -c tovangl-chart -n $pie -l shorten-left -d 'Cut captions at their beginning'
complete -c tovangl-chart -n $pie -l keep-overlaps -d 'Let captions overlap'
complete -c tovangl-chart -n $pie -l without-sizes -d 'Captions without sizes'
complete -c tovangl-chart -n $pie -l outline-color -x -d 'Colour of the outlines'
complete -c tovangl-chart -n $pie -l line-color -x -d 'Colour of the lines'

complete -c tovangl-chart -n $bars -l category-title -x -d 'Title of the category axis'
complete -c tovangl-chart -n $bars -l category-axis -x -a $axis -d 'What the category axis shows'
complete -c tovangl-chart -n $bars -l bar-width -x -d 'Width of every bar'
complete -c tovangl-chart -n $bars -l position -x -d 'Where the axes cross'
complete -c tovangl-chart -n $upright -l value-title -x -d 'Title of the value axis'
complete -c tovangl-chart -n $upright -l value-axis -x -a $axis -d 'What the value axis shows'

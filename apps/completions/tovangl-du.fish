# fish completion for tovangl-du
complete -c tovangl-du -x -a '(__fish_complete_directories)'
complete -c tovangl-du -s o -l output -x -a '(__fish_complete_directories)' -d 'Write the pages into this folder'
complete -c tovangl-du -l pages -x -d 'Write at most this many pages'
complete -c tovangl-du -l depth -x -d 'Write pages down to this many levels'
complete -c tovangl-du -l font-file -r -F -d 'Use the font in this file'
complete -c tovangl-du -s x -l one-file-system -d 'Leave out other file systems'
complete -c tovangl-du -s h -l help -d 'Show the help'
complete -c tovangl-du -l version -d 'Show the version'

# What fish completes after "quib".
complete -c quib -f
complete -c quib -l snapshot -x -a '(__fish_complete_directories)' -d 'Draw every tab into a picture in the folder and end'
complete -c quib -l help -d 'Show a short help and end'
complete -c quib -l version -d 'Show the version and end'

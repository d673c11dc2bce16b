# fish completion for skeldonctl(1)

set -l commands status get online start info convert csv chart
set -l first "not __fish_seen_subcommand_from $commands"

complete -c skeldonctl -f
complete -c skeldonctl -l help -d 'Print the help and exit'
complete -c skeldonctl -l version -d 'Print the version and exit'

complete -c skeldonctl -n $first -a status -d 'Ask the recorder for its status'
complete -c skeldonctl -n $first -a get -d "Read the recorder's memory"
complete -c skeldonctl -n $first -a online -d 'Record a live stream of the axes'
complete -c skeldonctl -n $first -a start -d 'Start the recorder by a profile'
complete -c skeldonctl -n $first -a info -d 'Tell what a data file holds'
complete -c skeldonctl -n $first -a convert -d 'Write a data file anew, in the present format'
complete -c skeldonctl -n $first -a csv -d 'Export a data file as CSV'
complete -c skeldonctl -n $first -a chart -d 'Draw a data file as a picture'

# What several commands have.
complete -c skeldonctl -n '__fish_seen_subcommand_from status get online info' -l json -d 'Print one JSON object'
complete -c skeldonctl -n '__fish_seen_subcommand_from get online info' -l records -d 'The same with all lines in it'
complete -c skeldonctl -n '__fish_seen_subcommand_from status get online start' -l port -r -F -d "The recorder's port"
complete -c skeldonctl -n '__fish_seen_subcommand_from csv chart' -l unit -x -a 'g ms2 gal' -d 'Unit of the axes'
complete -c skeldonctl -n '__fish_seen_subcommand_from info convert csv chart' -k -a '(__fish_complete_suffix .skd .sks)'

complete -c skeldonctl -n '__fish_seen_subcommand_from get' -s o -l output -r -F -d 'Save as a data file'
complete -c skeldonctl -n '__fish_seen_subcommand_from get' -l csv -r -F -d 'Export as CSV'

complete -c skeldonctl -n '__fish_seen_subcommand_from online' -l seconds -x -d 'How long, 1 to 4999 seconds'
complete -c skeldonctl -n '__fish_seen_subcommand_from online' -s o -l output -r -F -d 'Save as a data file'

complete -c skeldonctl -n '__fish_seen_subcommand_from start' -k -a '(__fish_complete_suffix .skp)'
complete -c skeldonctl -n '__fish_seen_subcommand_from start' -l clear -d "Clear the recorder's data and set its clock first"
complete -c skeldonctl -n '__fish_seen_subcommand_from start' -l at -x -d 'Start at this local time'
complete -c skeldonctl -n '__fish_seen_subcommand_from start' -l fit -d 'Take values that fit the recorder'

complete -c skeldonctl -n '__fish_seen_subcommand_from csv' -s o -l output -r -F -d 'CSV file to write'
complete -c skeldonctl -n '__fish_seen_subcommand_from csv' -l ravelin -d 'The form of the older tools'
complete -c skeldonctl -n '__fish_seen_subcommand_from csv' -l two-fields -d 'Date and time in a field each'
complete -c skeldonctl -n '__fish_seen_subcommand_from csv' -l no-resultant -d 'Without the resultant'
complete -c skeldonctl -n '__fish_seen_subcommand_from csv' -l no-temperature -d 'Without the temperature'
complete -c skeldonctl -n '__fish_seen_subcommand_from csv' -l no-humidity -d 'Without the humidity'

complete -c skeldonctl -n '__fish_seen_subcommand_from chart' -s o -l output -r -F -d 'Picture to write'
complete -c skeldonctl -n '__fish_seen_subcommand_from chart' -l size -x -d 'Size of the picture, such as 1200x700'
complete -c skeldonctl -n '__fish_seen_subcommand_from chart' -l bars -d 'Bars instead of lines'
complete -c skeldonctl -n '__fish_seen_subcommand_from chart' -l series -x -d 'Letters of the series to show: xyzrth'
complete -c skeldonctl -n '__fish_seen_subcommand_from chart' -l from -x -d 'First local time that is shown'
complete -c skeldonctl -n '__fish_seen_subcommand_from chart' -l to -x -d 'Last local time that is shown'
complete -c skeldonctl -n '__fish_seen_subcommand_from chart' -l elapsed -d 'Time since the first line on the axis'

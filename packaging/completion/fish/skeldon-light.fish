# fish completion for skeldon-light(1)

complete -c skeldon-light -f
complete -c skeldon-light -o setup -d 'Begin in the setup view'
complete -c skeldon-light -o display -d 'Begin in the data view'
complete -c skeldon-light -o mon -d 'Allow the monitor window'
complete -c skeldon-light -k -a '(__fish_complete_suffix .skd .sks)'

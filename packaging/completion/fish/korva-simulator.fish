# fish completion for korva-simulator(1)

complete -c korva-simulator -f
complete -c korva-simulator -l help -d 'Print the help and exit'
complete -c korva-simulator -l version -d 'Print the version and exit'
complete -c korva-simulator -l link -r -F -d 'Name of the port while the cable is plugged in'
complete -c korva-simulator -l unplugged -d 'Begin with the cable pulled'
complete -c korva-simulator -l type -x -a 'oldest pl04 pl20 qm70' -d 'Recorder'
complete -c korva-simulator -l alpha -d 'With alpha firmware'
complete -c korva-simulator -l no-buzzer -d 'Without a buzzer in its report'
complete -c korva-simulator -l lines -x -d 'Lines in the memory'
complete -c korva-simulator -l records -r -F -d 'File with the memory as raw record lines'
complete -c korva-simulator -l capacity -x -d 'Lines that the memory can hold'
complete -c korva-simulator -l seed -x -d 'Number that all measurements follow from'
complete -c korva-simulator -l from -x -d 'Time of the first line'
complete -c korva-simulator -l step -x -d 'Seconds between two lines'
complete -c korva-simulator -l clock -x -d "What the recorder's clock shows"
complete -c korva-simulator -l state -r -F -d 'File that keeps the recorder over runs'
complete -c korva-simulator -l rate -x -a 'real full' -d 'How fast it sends'
complete -c korva-simulator -l time-scale -x -d 'Seconds of the recorder in one real second'
complete -c korva-simulator -l control -r -F -d 'Named pipe that takes commands'
complete -c korva-simulator -l trace -r -F -d 'File that logs the wire'
complete -c korva-simulator -l fault -x -d 'A fault that the recorder plays' -a 'silence-after= silence= silence-once= no-mark delay= garbage pull-after= pull-at= too-few too-many short-line= corrupt-line= invalid-line= lower-case break= new-year= count= no-count year-only keys-twice endless-report line-feeds'

# The program knows its verbs, options, settings and set names itself.
complete -c tessera -a '(tessera --complete (commandline -opc)[2..] (commandline -ct) 2>/dev/null)'

# The program knows its verbs, options, settings and set names itself.
_tessera() {
  mapfile -t COMPREPLY < <(tessera --complete "${COMP_WORDS[@]:1:COMP_CWORD}" 2>/dev/null)
  # What goes on behind the sign gets no blank.
  [[ ${COMPREPLY[0]-} == *[=:] ]] && compopt -o nospace
  return 0
}
complete -o default -F _tessera tessera

# Completion of tessara-deck for bash.
_tessara_deck() {
  local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD-1]} command=${COMP_WORDS[1]} options=""
  COMPREPLY=()
  if [ "$COMP_CWORD" -eq 1 ]; then
    mapfile -t COMPREPLY < <(compgen -W "convert check show info print --help --version" -- "$word")
    return
  fi
  case $before in
    --from | --to)
      mapfile -t COMPREPLY < <(compgen -W "tsr txt csv tsv kvtml" -- "$word")
      return
      ;;
  esac
  case $command in
    convert) options="--from --to --title --author --description --anki --strict --force" ;;
    check) options="--from" ;;
    show | info) options="--from --json" ;;
    print) options="--from --cards --flip --listing --force" ;;
  esac
  if [[ $word == -* ]]; then
    mapfile -t COMPREPLY < <(compgen -W "$options --help --version" -- "$word")
  else
    compopt -o default
  fi
}
complete -F _tessara_deck tessara-deck

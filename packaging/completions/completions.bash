# Completions of bash for the commands of Orvik Menu. What a command takes is read from its help text.

# Offers those of the words that begin with what is typed.
_orvik_offer() {
  local word
  for word; do
    [[ $word != "$current"* ]] || COMPREPLY+=("$(printf %q "$word")")
  done
}

_orvik_offer_lines() {
  local lines
  mapfile -t lines
  _orvik_offer "${lines[@]}"
}

_orvik_offer_files() {
  compopt -o default 2>/dev/null
}

# _orvik_help COMMAND EXPRESSION: the first words of the lines that begin so.
_orvik_help() {
  "$1" --help 2>/dev/null | sed -n "s/^$2.*/\1/p"
}

# Those that can be done here are programs of their own, which may have workers, and files that say what they need.
_orvik_actions() {
  local command
  command=$(readlink -f "$(type -P "$1")") && ls "${command%/*}/@to_actions@" 2>/dev/null | grep -v -e '-worker$' -e '[.]'
}

_orvik_domains() {
  printf '%s\n' suite app
  "$1" domains 2>/dev/null
}

_orvik_keys() {
  "$1" export "$2" - 2>/dev/null | sed -n $'s:^\t<key>\\(.*\\)</key>$:\\1:p'
}

_orvik_defaults() {
  case $COMP_CWORD,${COMP_WORDS[1]} in
    1,*) _orvik_offer_lines < <(_orvik_help "$1" '  \(-*[a-z][a-z]*\)') ;;
    2,read | 2,write | 2,delete | 2,export | 2,import | 2,path | 2,repair) _orvik_offer_lines < <(_orvik_domains "$1") ;;
    3,read | 3,write | 3,delete) _orvik_offer_lines < <(_orvik_keys "$1" "${COMP_WORDS[2]}") ;;
    3,export | 3,import) _orvik_offer_files ;;
    4,write) _orvik_offer_lines < <(_orvik_help "$1" '      \(-[a-z]*\)') ;;
    5,write) [ "${COMP_WORDS[4]}" != -bool ] || _orvik_offer true false ;;
  esac
}

_orvik_commands() {
  local current=${COMP_WORDS[COMP_CWORD]//\\/}
  COMPREPLY=()
  case ${1##*/},$COMP_CWORD,${COMP_WORDS[1]} in
    orvik-defaults,*) _orvik_defaults "$1" ;;
    orvik-notify,1,[!-]* | orvik-notify,1,) _orvik_offer @notifications@ ;;
    orvik-notify,2,*) _orvik_offer @extension@ ;;
    *,1,*) _orvik_offer_lines < <(_orvik_help "$1" '  \(--[a-z]*\)') ;;
    orvik-menu,2,--tab) _orvik_offer @tabs@ ;;
    orvik-menu-extension,2,--run) _orvik_offer_lines < <(_orvik_actions "$1") ;;
    orvik-menu-extension,*,--run) _orvik_offer_files ;;
  esac
}

complete -F _orvik_commands @commands@

#compdef @commands@
# Completions of zsh for the commands of Orvik Menu. What a command takes is read from its help text.

# _orvik_help EXPRESSION: the first words of the lines that begin so.
_orvik_help() {
  $command --help 2>/dev/null | sed -n "s/^$1.*/\1/p"
}

_orvik_defaults() {
  case $((CURRENT - 1)),$words[2] in
    1,*) compadd -- ${(f)"$(_orvik_help '  \(-*[a-z][a-z]*\)')"} ;;
    2,(read|write|delete|export|import|path|repair)) compadd -- suite app ${(f)"$($command domains 2>/dev/null)"} ;;
    3,(read|write|delete))
      compadd -- ${(f)"$($command export $words[3] - 2>/dev/null | sed -n $'s:^\t<key>\\(.*\\)</key>$:\\1:p')"} ;;
    3,(export|import)) _files ;;
    4,write) compadd -- ${(f)"$(_orvik_help '      \(-[a-z]*\)')"} ;;
    5,write) [[ $words[5] != -bool ]] || compadd true false ;;
  esac
}

local command=${~words[1]}
local program=${commands[$command]:-$command}
case ${words[1]:t},$((CURRENT - 1)),$words[2] in
  orvik-defaults,*) _orvik_defaults ;;
  orvik-notify,1,([^-]*|)) compadd -- @notifications@ ;;
  orvik-notify,2,*) compadd -- @extension@ ;;
  *,1,*) compadd -- ${(f)"$(_orvik_help '  \(--[a-z]*\)')"} ;;
  orvik-menu,2,--tab) compadd -- @tabs@ ;;
  # Those that can be done here are programs of their own, which may have workers, and files that say what they need.
  orvik-menu-extension,2,--run)
    local files=(${program:A:h}/@to_actions@/*(N:t))
    compadd -- ${files:#*(.*|-worker)}
    ;;
  orvik-menu-extension,*,--run) _files ;;
esac

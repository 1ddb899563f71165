# SPDX-License-Identifier: MIT
# Completion for bash. Commands, options and choices come from the tool's own help, so they are never out of date.
_zorcc()
{
  local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD-1]} command= words=
  local tool=${COMP_WORDS[0]} i
  for ((i = 1; i < COMP_CWORD; ++i)); do
    [[ ${COMP_WORDS[i]} == -* || ${COMP_WORDS[i]} == help ]] || { command=${COMP_WORDS[i]}; break; }
  done
  case $before in
  --to | --format) words=$("$tool" list --formats 2>/dev/null) ;;
  --as) words="png jpg ppm pgm pfm y4m yuv rgb raw" ;;
  call) words=$("$tool" list 2>/dev/null | cut -d ' ' -f 1) ;;
  -*) words=$("$tool" help $command 2>/dev/null | sed -nE "s/^ +(.*,)?$before ([A-Za-z0-9]+(\|[A-Za-z0-9]+)+).*/\2/p" | tr '|' ' ') ;;
  esac
  if [[ -z $words && $word == -* ]]; then
    words=$("$tool" help $command 2>/dev/null | grep -oE -- '--[A-Za-z][A-Za-z-]*' | sort -u)
  elif [[ -z $words && -z $command ]]; then
    words=$("$tool" help 2>/dev/null | sed -n '/^Subcommands:/,/^$/s/^  \([a-z]*\) .*/\1/p')
  fi
  COMPREPLY=($(compgen -W "$words" -- "$word"))
}
complete -o bashdefault -o default -F _zorcc zorcc

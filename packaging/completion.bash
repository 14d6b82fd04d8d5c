# Completion for the programs of korvel-print, installed under the name of each. Options, the words
# that they take, and subcommands are read from the program's own help.
# shellcheck shell=bash

# Offers some of these words for what is typed behind the last comma.
_korvel_offer() { # words
    local behind=${cur##*,}
    mapfile -t COMPREPLY < <(compgen -P "${cur%"$behind"}" -W "$1" -- "$behind")
    [[ ${COMPREPLY[0]-} != *= ]] || compopt -o nospace
}

# The row of the help for an option, in one line; none for what is no option.
_korvel_row() { # option
    [[ $1 != -* ]] || grep -E -m 1 -- "^  (-., )?$1[ ,]" <<<"$help"
}

# Offers what belongs behind an option; fails when that is nothing.
_korvel_value() { # row of the option
    local item='[a-z][a-z-]*(=[A-Z]+)?' list
    list=$(sed -nE "s/.*: (($item, )*$item or $item)( \(.*\))?\.\$/\1/p" <<<"$1")
    if [ "$list" ]; then
        _korvel_offer "$(sed -E 's/, | or / /g; s/=[A-Z]+/=/g' <<<"$list")"
        return
    fi
    case ${1%%>*} in
        *'<code' | *'<codes') _korvel_offer "$("$program" --list-codes | sed 's/ .*//')" ;;
        *'<file' | *'<device') _filedir ;;
        *'<folder') _filedir -d ;;
        *'<'*) ;; # whatever the user knows
        *) return 1 ;;
    esac
}

# Offers a subcommand, or a word that may stand behind one.
_korvel_subcommand() { # rows of the subcommands
    local given=() i row
    for ((i = 1; i < cword; ++i)); do
        case ${words[i]} in
            -*=*) ;;
            -*) [[ $(_korvel_row "${words[i]}") != *' <'* ]] || ((++i)) ;;
            *) given+=("${words[i]}") ;;
        esac
    done
    if [ ${#given[@]} -eq 0 ]; then
        _korvel_offer "$(grep -o '^[a-z-]*' <<<"$1")"
        return
    fi
    row=$(grep -m 1 "^${given[0]} " <<<"$1")
    read -ra row <<<"${row%%  *}"
    [[ ${row[${#given[@]}]-} != *'|'* ]] || _korvel_offer "${row[${#given[@]}]//|/ }"
}

_korvel() {
    # shellcheck disable=SC2034 # split is _init_completion's
    local cur prev words cword split
    _init_completion -s -n : || return
    local program=${1/#\~/$HOME} help row subcommands
    # What the help breaks into several lines is one.
    help=$("$program" --help </dev/null 2>/dev/null | sed -e :a -e '$!N;s/\n \{10,\}/ /;ta;P;D')

    row=$(_korvel_row "$prev")
    ! { [ "$row" ] && _korvel_value "$row"; } || return 0
    if [[ $cur == -* ]]; then
        _korvel_offer "$(sed -nE 's/^  (-.)?(, )?(--[a-z-]+).*/\1 \3/p' <<<"$help")"
        return
    fi
    subcommands=$(sed -n '/^Options:/q; s/^  \([a-z]\)/\1/p' <<<"$help")
    if [ "$subcommands" ]; then
        _korvel_subcommand "$subcommands"
    elif [[ $help != *Options:* || $help == *Arguments:* ]]; then
        _filedir
    fi
} && complete -F _korvel "${BASH_SOURCE[0]##*/}"

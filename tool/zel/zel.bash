# bash completion for zel                                                              -*- shell-script -*-

_zel_mapping='--names --kind --element --levels --state --keywords --from-separators --from-like'
_zel_lines='--field --delimiter --csv --null --jobs --quiet'

_zel() {
    local word=${COMP_WORDS[COMP_CWORD]} before='' command=${COMP_WORDS[1]} candidates='' spaces=0 i
    ((COMP_CWORD == 0)) || before=${COMP_WORDS[COMP_CWORD - 1]}
    COMPREPLY=()
    if ((COMP_CWORD == 1)); then
        mapfile -t COMPREPLY < <(compgen -W 'map explain check spaces --help --version' -- "$word")
        return
    fi
    case $before in
    --kind) candidates='net port instance pin' ;;
    --levels) candidates='all last' ;;
    --state) candidates='default match vhdl tandem process' ;;
    --on-error) candidates='empty keep skip stop' ;;
    --keywords) candidates='1364-2001 1364-2005 1800-2017 1076-2008' ;;
    --from) candidates=$(_zel_spaces) ;;
    --from-like | --to-like)
        mapfile -t COMPREPLY < <(compgen -f -- "$word")
        return
        ;;
    --element | --from-separators | --to-separators | --field | --delimiter | --jobs) return ;;
    *)
        case $command in
        map) candidates="$_zel_mapping $_zel_lines --to-separators --to-like --explode --group --norepeat --top --lenient
            --on-error --check --stats" spaces=2 ;;
        check) candidates="$_zel_mapping $_zel_lines" spaces=1 ;;
        explain) candidates="$_zel_mapping --from --to-separators --to-like" ;;
        esac
        candidates+=' --help'
        if [[ $word != -* ]]; then
            # Spaces stand first, then files.
            for ((i = 2; i < COMP_CWORD; ++i)); do
                case ${COMP_WORDS[i]} in
                --kind | --levels | --state | --on-error | --keywords | --element | --from-separators | --to-separators | \
                    --from-like | --to-like | --field | --delimiter | --jobs) ((++i)) ;;
                -?*) ;;
                *) ((--spaces)) ;;
                esac
            done
            if ((spaces <= 0)); then
                [[ $command == explain ]] || mapfile -t COMPREPLY < <(compgen -f -- "$word")
                return
            fi
            candidates=$(_zel_spaces)
        fi
        ;;
    esac
    mapfile -t COMPREPLY < <(compgen -W "$candidates" -- "$word")
}

# The spaces of the zel that is completed.
_zel_spaces() {
    "${COMP_WORDS[0]}" spaces 2>/dev/null | sed -n '2,/^$/s/ .*//p'
}

complete -o filenames -F _zel zel

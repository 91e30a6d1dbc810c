# bash completion for zelpath                                                          -*- shell-script -*-

# The options of zelpath -help but -kirraHDL, which matches no word: -spice reads such paths.
_zelpath_options='-explode -gcf -group -help -kirra -map -mutate -nocomplex -norepeat -orka -parse
    -spice -tessel -top -verilog -vhdl'

# The name spaces that have paths, and so can stand behind -map.
_zelpath_spaces='Def FlatTessel Gcf Kirra KirraHDL Lef ORKA Sdf Spef Spf Spice Tessel VHDL VHDL87 VHDLAMS Verilog
    VerilogAMS'

_zelpath() {
    local word=${COMP_WORDS[COMP_CWORD]} candidates='' back
    for back in 1 2; do
        if ((COMP_CWORD > back)) && [[ ${COMP_WORDS[COMP_CWORD - back],,} == -map ]]; then
            candidates=$_zelpath_spaces
        fi
    done
    [[ -n $candidates || $word != -* ]] || candidates=$_zelpath_options
    mapfile -t COMPREPLY < <(compgen -W "$candidates" -- "$word")
}

complete -F _zelpath zelpath

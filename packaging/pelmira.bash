# bash completion for pelmira: its options and photos

_pelmira()
{
    local cur prev words cword
    _init_completion || return
    if [[ $cur == -* ]]; then
        mapfile -t COMPREPLY < <(compgen -W '--help --version --' -- "$cur")
    else
        _filedir '@(jp?(e)g|png|webp|tif?(f)|hei[cf]|avif)'
    fi
} && complete -F _pelmira pelmira

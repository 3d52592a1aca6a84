# Prints what zsh offers after a line that was typed, a word a line: zsh -f offered.zsh FOLDER LINE, where FOLDER holds the
# completions. Completion needs a terminal, so a second shell is given one.
zmodload zsh/zpty
zpty terminal zsh -f -i
zpty -w terminal "fpath=(${(q)1} \$fpath); autoload -Uz compinit; compinit -u -D"
# Who only asks which of its words match, by -O, -A or -D, offers nothing.
zpty -w terminal 'compadd() {
    local -a offered
    if [[ ${@[1,(i)(-|--)]} != *-(O|A|D)\ * ]]; then
        builtin compadd -O offered "$@"
        print -rl -- "offered:"$^offered
    fi
    builtin compadd "$@"
}'
zpty -w terminal 'offer() { print; _main_complete; print the" "end; compstate[insert]= compstate[list]= }'
zpty -w terminal 'zle -C offer complete-word offer; bindkey "^I" offer; print all" "set'
zpty -r terminal output $'*all set*'
zpty -n -w terminal "$2"$'\t'
zpty -r terminal output $'*the end*'
zpty -d terminal
print -rl -- ${${(M)${(f)${output//$'\r'/}}:#offered:*}#offered:}

function __corvane_ctl_words
    string match -v -- '--*' (commandline -opc)[2..]
end
function __corvane_ctl_at -a command count
    set -l words (__corvane_ctl_words)
    test (count $words) -eq $count -a "$words[1]" = "$command"
end
function __corvane_ctl_keys
    corvane-ctl list 2>/dev/null | awk 'NR > 1 { print $1 }'
end
function __corvane_ctl_values
    set -l words (__corvane_ctl_words)
    corvane-ctl get $words[2] --json 2>/dev/null | awk '
        /"type": "boolean"/ { print "true"; print "false" }
        /\]/ { inside = 0 }
        inside { gsub(/[ ",]/, ""); print }
        /"choices": \[/ { inside = 1 }'
end
function __corvane_ctl_layouts
    corvane-ctl layouts list 2>/dev/null | awk 'NR > 1 { print $1 }'
end
complete -c corvane-ctl -f
complete -c corvane-ctl -l json -d 'Print results as JSON'
complete -c corvane-ctl -s h -l help -d 'Print the commands and options'
complete -c corvane-ctl -l version -d 'Print the version'
complete -c corvane-ctl -l dry-run -n '__fish_seen_subcommand_from import' -d 'Only show what would change'
complete -c corvane-ctl -l all -n '__fish_seen_subcommand_from reset' -d 'Every setting, the saved layouts too'
complete -c corvane-ctl -n __fish_use_subcommand -a list -d 'Show every key'
complete -c corvane-ctl -n __fish_use_subcommand -a get -d 'Show the value of a key'
complete -c corvane-ctl -n __fish_use_subcommand -a set -d 'Change a setting'
complete -c corvane-ctl -n __fish_use_subcommand -a reset -d 'Put settings back to their defaults'
complete -c corvane-ctl -n __fish_use_subcommand -a watch -d 'Print changes and commands as they come'
complete -c corvane-ctl -n __fish_use_subcommand -a send -d 'Post a command to the agent'
complete -c corvane-ctl -n __fish_use_subcommand -a export -d 'Write the settings to a file'
complete -c corvane-ctl -n __fish_use_subcommand -a import -d 'Take the settings from a file'
complete -c corvane-ctl -n __fish_use_subcommand -a layouts -d 'Look after the saved layouts'
complete -c corvane-ctl -n __fish_use_subcommand -a check-agent -d 'Try out an agent'
complete -c corvane-ctl -n '__corvane_ctl_at get 1; or __corvane_ctl_at set 1; or __fish_seen_subcommand_from reset' -a '(__corvane_ctl_keys)'
complete -c corvane-ctl -n '__corvane_ctl_at set 2' -a '(__corvane_ctl_values)'
complete -c corvane-ctl -n '__corvane_ctl_at send 1' -a 'applySettings setLaunchAtLogin requestAccessibility checkForUpdates'
complete -c corvane-ctl -n '__corvane_ctl_at send 2; and __fish_seen_subcommand_from setLaunchAtLogin' -a 'true false'
complete -c corvane-ctl -n '__corvane_ctl_at layouts 1' -a 'list show rename delete'
complete -c corvane-ctl -n '__corvane_ctl_at layouts 2; and not __fish_seen_subcommand_from list' -a '(__corvane_ctl_layouts)'
complete -c corvane-ctl -n '__corvane_ctl_at check-agent 1' -a '(__fish_complete_command)'
complete -c corvane-ctl -F -n '__fish_seen_subcommand_from export import check-agent'

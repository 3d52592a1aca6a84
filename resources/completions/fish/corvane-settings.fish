complete -c corvane-settings -f
complete -c corvane-settings -l about -d 'Open the About window'
complete -c corvane-settings -l onboarding -d 'Open the guide'
complete -c corvane-settings -l replay -n '__fish_contains_opt onboarding' -d 'Show the guide once more'

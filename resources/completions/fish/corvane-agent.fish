complete -c corvane-agent -f
complete -c corvane-agent -l grant-after -x -d 'Grant the permission so many seconds after it was requested'
complete -c corvane-agent -l headless -d 'Open no window'
complete -c corvane-agent -s h -l help -d 'Print the options'
complete -c corvane-agent -l help-all -d 'Print the options, and those of the toolkit'
complete -c corvane-agent -l listed -d 'The list of permissions holds the agent from the beginning'
complete -c corvane-agent -l needs-approval -d 'A new login item waits for approval'

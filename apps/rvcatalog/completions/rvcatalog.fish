# Completes command lines of rvcatalog in fish. The program itself knows how they go on: "rvcatalog complete -- WORD..."
# writes a word, a tab and what it means a line, and ":files" where file names are meant.

function __rvcatalog_complete
    set -l words (commandline -opc)
    for line in ($words[1] complete -- $words[2..-1] (commandline -ct) 2>/dev/null)
        if test $line = :files
            __fish_complete_path (commandline -ct)
        else
            echo $line
        end
    end
end

complete -c rvcatalog -f -a '(__rvcatalog_complete)'

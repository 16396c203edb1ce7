# Completes command lines of rvcatalog in fish. The program itself computes the completions: "rvcatalog complete --
# WORD..." writes lines with a word, a tab and a description, and ":files" for names of files.

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

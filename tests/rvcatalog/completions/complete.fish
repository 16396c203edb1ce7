#!/usr/bin/env fish
# complete.fish SCRIPT LINE: how fish goes on with a command line, a candidate a line.
source $argv[1]; or exit 2
complete -C $argv[2] | string replace -r '\t.*' ''
exit 0

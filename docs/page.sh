#!/bin/sh
# page.sh PAGE: what doxygen reads instead of a page. It is referred to by the name of its file, since doxygen's own name
# for it differs from version to version. Links that leave the documentation lead nowhere.
name=$(basename "$1" .md | tr - _)
sed -E -e "1s/\$/ {#page_$name}/" -e 's/\[([^]]+)\]\(\.\.\/(examples[^)]*)\)/\1 (`\2`)/g' "$1"

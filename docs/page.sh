#!/bin/sh
# page.sh PAGE: what doxygen reads instead of a page. It is referred to by the name of its file, also from other pages, since
# doxygen's own name for it differs from version to version. Links that leave the documentation lead nowhere.
name=$(basename "$1" .md | tr - _)
sed -E -e "1s/\$/ {#page_$name}/" -e 's/\[([^]]+)\]\(\.\.\/([^)]*)\)/\1 (`\2`)/g' \
  -e 's/\]\(([a-z-]+)\.md\)/](@ref page_\1)/g' -e ':next' -e 's/(\(@ref page_[a-z_]*)-/\1_/' -e 't next' "$1"

#!/usr/bin/env bash
# mime_database.sh TYPES SYSTEM FOLDER: makes a database of MIME types in FOLDER/mime, of the types of the system and those of
# the file TYPES.
set -euo pipefail
types=$1 system=$2 folder=$3

rm -rf "$folder"
mkdir -p "$folder/mime/packages"
cp "$types" "$system" "$folder/mime/packages"
# The folder is on no path of searches, which is remarked on, and so it shall be.
complaints=$(XDG_DATA_DIRS=$folder update-mime-database "$folder/mime" 2>&1)
if [[ $complaints ]]; then
    echo "$complaints"
    exit 1
fi

#!/usr/bin/env bash
# gdb.sh GDB PRINTERS PROGRAM: gdb shows the values of the program as they are written here.
set -euo pipefail
gdb=$1 printers=$2 program=$3

expected=$(cat <<'TEXT'
cover = RVCoverType(HARDCOVER|GIFT)
unknownCover = RVCoverType(SOFTCOVER|0x100000000)
noCover = RVCoverType(0)
noOrientation = RVOrientation(ORIENTATION_NONE)
calendar = RVArticleClass(ARTICLE_CLASS_NORMAL_CALENDAR|ARTICLE_CLASS_AGENDA)
spot = RVSpotColor(SPOT_COLOR_GOLD)
article = RVArticleId(7101)
group = RVShippingGroupId(-1)
order = RVOrderId("123-456")
project = RVOrderProjectInfo(order "123-456", position 2, session "session")
price = RVPriceClass("KUR2")
type = RVProductType("DUN9")
options = RVArticleVariants(alcolor="weinröt", coverphoto="yes")
noOptions = RVArticleVariants()
option = RVConfiguredArticleVariant(alcolor="red")
counts = RVPageCountOrganization(26-154 by 4)
fixed = RVPageCountOrganization(3-3)
distance = RVDistance(12.5 mm)
angle = RVAngle(90°)
margins = RVMargins(top 1, bottom 2, left 3, right 4)
movedMargins = RVMargins(<not readable>)
taken = RVMargins(top 5, bottom 5, left 6, right 6)
key = RVPageSizeKey(PAGE_TYPE_SPINE, PAGE_ALIGNMENT_LEFT|PAGE_ALIGNMENT_RIGHT|PAGE_ALIGNMENT_MIDDLE|PAGE_ALIGNMENT_FULLPAGE|PAGE_ALIGNMENT_TOP|PAGE_ALIGNMENT_BOTTOM|PAGE_ALIGNMENT_CENTER, 26)
spine = RVSpineConfig(26-154 by 4, base 8 mm, block 1 mm, additional 0.5 mm)
reference = RVCoverType(HARDCOVER|GIFT)
rawOptions.value = RVArticleVariants(<not readable>)
zeroOptions.value = RVArticleVariants()
rawOrder.value = RVOrderId(<not readable>)
rawMargins.value = RVMargins(<not readable>)
zeroOption.value = RVConfiguredArticleVariant(<not readable>)
rawSpine.value = RVSpineConfig(<not readable>)
TEXT
)
commands=(-ex "set host-charset UTF-8" -ex "set disable-randomization off" -ex "source $printers"
    -ex "break stopHere" -ex run -ex up)
while read -r name _; do
    commands+=(-ex "output \"$name = \"" -ex "output $name" -ex 'echo \n')
done <<<"$expected"
# Their values are those of the filling, which need not mean anything.
for name in rawCover.value rawDistance.value; do
    commands+=(-ex "output $name" -ex 'echo \n')
done
output=$(LC_ALL=C.UTF-8 QT_QPA_PLATFORM=offscreen "$gdb" --batch --nx "${commands[@]}" "$program" 2>&1)
shown=$(sed -nE 's/^"([A-Za-z.]+ = )"/\1/p' <<<"$output")
grep -qE '^RVCoverType\(.*0x' <<<"$output" && grep -qE '^RVDistance\(.* mm\)' <<<"$output" || {
    printf 'what is not initialised is not shown:\n%s\n' "$output"
    exit 1
}
if [[ $output == *"Python Exception"* ]] || ! diff <(printf '%s\n' "$expected") <(printf '%s\n' "$shown"); then
    printf '%s\n' "$output"
    exit 1
fi

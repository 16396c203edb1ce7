#!/usr/bin/env bash
# Gives every fuzz target some seconds of libFuzzer and sums up what it found: run.sh BUILD SECONDS
set -euo pipefail

build="$(readlink -f "$1")/fuzz"
seconds="$2"
cd "$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")"

# Runs one target. Its new inputs stay in the build folder, so that the next run continues with them.
run_target() {
  local target="$1"
  local work="$build/inputs/$target"
  local log="$work.log"
  mkdir -p "$work" "$build/findings"
  if "$build/fuzz_$target" -max_total_time="$seconds" -timeout=20 -max_len=4096 -print_final_stats=1 \
    -dict="$target.dict" -artifact_prefix="$build/findings/$target-" "$work" "corpus/$target" 2>"$log"; then
    printf '%-14s %9s runs in %s s, nothing found\n' "$target" "$(sed -n 's/^stat::number_of_executed_units: *//p' "$log")" \
      "$seconds"
    return 0
  fi
  local input
  input="$(sed -n 's/.*Test unit written to //p' "$log" | tail -n 1)"
  printf '%-14s FOUND SOMETHING: %s\n' "$target" "${input:-see $log}"
  grep -m 3 -E 'does not hold|^  actual|^  expected|runtime error|ERROR: ' "$log" | sed 's/^/  /' || true
  [ -z "$input" ] || echo "  replay it with: $build/fuzz_$target $input"
  return 1
}
export -f run_target
export build seconds

targets=()
for dictionary in *.dict; do
  targets+=("${dictionary%.dict}")
done
printf '%s\n' "${targets[@]}" | xargs -P "$(nproc)" -I TARGET bash -c 'run_target TARGET' || exit 1

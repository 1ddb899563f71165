#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Milliseconds of a frame of 1920x1080 in zorconvert and in videoconvert, on one thread: bench.sh [PLUGIN-FOLDER [FRAMES]]
# videotestsrc draws one frame and hands it out again; what the pipeline takes without a converter is subtracted. The
# best of seven runs, the elements in turn.
set -euo pipefail
cd "$(dirname "$0")/../.."
export GST_PLUGIN_PATH=${1:-$PWD/build/release/lib/gstreamer-1.0}
frames=${2:-400}

# run ELEMENT FROM TO: nanoseconds of all frames
run() {
  local size=width=1920,height=1080 converter=() before
  [ "$1" = none ] || converter=("$1" n-threads=1 ! "video/x-raw,format=$3" !)
  before=$(date +%s%N)
  gst-launch-1.0 -q videotestsrc num-buffers="$frames" ! "video/x-raw,format=$2,$size" ! "${converter[@]}" \
    fakesink sync=false
  echo $(($(date +%s%N) - before))
}

printf '%-16s %10s %12s %8s\n' conversion zorconvert videoconvert ratio
while read -r from to; do
  declare -A best=()
  for _ in {1..7}; do
    for element in none zorconvert videoconvert; do
      time=$(run $element "$from" "$to")
      [ "${best[$element]:-$time}" -lt "$time" ] || best[$element]=$time
    done
  done
  awk -v name="$from $to" -v none="${best[none]}" -v ours="${best[zorconvert]}" -v theirs="${best[videoconvert]}" \
    -v frames="$frames" 'BEGIN {
      ours = (ours - none) / frames / 1e6; theirs = (theirs - none) / frames / 1e6
      printf "%-16s %10.3f %12.3f %8.2f\n", name, ours, theirs, theirs / ours }'
done <<'EOF'
NV12 RGB
I420 BGRx
YUY2 BGRA
RGB NV12
EOF

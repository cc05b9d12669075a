#!/bin/sh
# From start to output: a greeting written by hand in C++, compiled and run, against the same greeting in பொழில்.
#
#   benchmarks/hello.sh [rounds]
#
# The two take turns, so that whatever else the machine does weighs on both alike. POZHIL_COMPILER names the compiler;
# without it the release build is measured.
set -eu
root=$(dirname -- "$(dirname -- "$(readlink -f -- "$0")")")
compiler=${POZHIL_COMPILER:-$root/build/release/பொழில்/பொழி}
rounds=${1:-15}

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cd "$work"
printf '#include <iostream>\n\nint main() {\n    std::cout << "வணக்கம்" << std::endl;\n}\n' >hello.cpp
cp "$root/எடுத்துக்காட்டுகள்/வணக்கம்.பொழில்" hello.பொழில்

by_hand() {
    g++ -std=c++17 -static hello.cpp -o hello && ./hello
}

in_pozhil() {
    POZHIL_ANIMATION_MS=0 "$compiler" hello.பொழில்
}

# measure <function>: appends the milliseconds of one run to <function>.times.
measure() {
    begin=$(date +%s%N)
    "$1" >"$1.output" </dev/null
    end=$(date +%s%N)
    grep -q வணக்கம் "$1.output"
    echo $(((end - begin) / 1000)) >>"$1.times"
}

median() {
    sort -n "$1.times" | awk '{ value[NR] = $1 } END { print (value[int((NR + 1) / 2)] + value[int(NR / 2) + 1]) / 2000 }'
}

# The first round only fills the caches.
measure by_hand
measure in_pozhil
rm -f ./*.times
for _ in $(seq "$rounds"); do
    measure by_hand
    measure in_pozhil
done

awk -v hand="$(median by_hand)" -v pozhil="$(median in_pozhil)" -v rounds="$rounds" 'BEGIN {
    printf "medians of %d rounds\n", rounds
    printf "  C++ by hand  %7.1f ms\n", hand
    printf "  பொழில்        %7.1f ms\n", pozhil
    printf "  ratio        %7.2f\n", pozhil / hand
}'

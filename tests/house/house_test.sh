#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# The house rules a compiler does not check. The application shell sits on
# top: no subsystem below it reaches into it, and the shared helpers at the
# bottom reach only each other. Every source file names its licence.
# Usage: house_test.sh PROJECT_DIR
set -euo pipefail
root="$1"
src="$root/src"
status=0
report() { echo "FAIL: $1"; echo "$2"; status=1; }

for folder in audio common desktop dialogs localization practice preferences transcript update views; do
  found="$(grep -rn '#include "app/' "$src/$folder" || true)"
  [ -z "$found" ] || report "$folder includes the application shell" "$found"
done
found="$(grep -rn '#include "' "$src/common" | grep -v '#include "common/' || true)"
[ -z "$found" ] || report "common includes upwards" "$found"
found="$(grep -rn '#include "' "$src/dialogs" | grep -v '#include "\(common\|dialogs\|localization\)/' || true)"
[ -z "$found" ] || report "dialogs includes upwards" "$found"

unlicensed="$(cd "$root" && find src tests bench fuzz scripts cmake .ci \
  \( -name '*.cpp' -o -name '*.h' -o -name '*.sh' -o -name '*.py' -o -name '*.cmake' \
     -o -name CMakeLists.txt -o -path 'scripts/*' -o -path .ci/run \) -type f \
  -exec sh -c 'head -n 2 "$1" | grep -q "SPDX-License-Identifier: GPL-3.0-or-later" || echo "$1"' _ {} \;)"
[ -z "$unlicensed" ] || report "source files without their licence line" "$unlicensed"
[ "$status" = 0 ] && echo "the house is in order"
exit "$status"

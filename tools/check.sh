#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Checks the C++ files that have changed since this branch left BASE (origin/main, else main), committed or not: their
# layout (clang-format) and what clang-tidy finds in those that the program is built from.
#   tools/check.sh [--format] [--all | BASE]     --format: the layout alone    --all: every file
# Both tools are of version 14, since each version has a layout and opinions of its own.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
. tools/packages.sh

format_only='' all='' base=''
for argument in "$@"; do
    case $argument in
        --format) format_only=yes ;;
        --all) all=yes ;;
        -*) sed -n '3,6s/^# //p' "$0"; exit 2 ;;
        *) base=$argument ;;
    esac
done

# The headers and sources to check.
files() {
    if [ -n "$all" ]; then
        git ls-files --cached --others --exclude-standard
    else
        git diff --name-only --diff-filter=d "$since"
        git ls-files --others --exclude-standard
    fi | grep -E '\.(h|cpp)$' | sort -u || true
}

# The sources through which clang-tidy sees FILE...: each source itself; for a header its source, or one that includes it.
# Tests and tools are no part of the program.
translation_units() {
    local file
    for file in "$@"; do
        if [ "${file##*.}" = cpp ]; then
            echo "$file"
        elif [ -f "${file%.h}.cpp" ]; then
            echo "${file%.h}.cpp"
        else
            git grep -lF "#include \"$file\"" -- '*.cpp' ':!tests' ':!tools' ':!benchmarks' | head -n 1 || true
        fi
    done | sort -u | while read -r file; do
        ! grep -qF "\"file\": \"$PWD/$file\"" build/tidy/compile_commands.json || echo "$file"
    done
}

if [ -z "$all" ]; then
    since=$(git merge-base HEAD "${base:-origin/main}" 2>/dev/null || git merge-base HEAD "${base:-main}")
    # On main itself: its last commit.
    [ -n "$base" ] || [ "$since" != "$(git rev-parse HEAD)" ] || since=$(git rev-parse -q --verify HEAD~1 || echo "$since")
fi
mapfile -t changed < <(files)
[ ${#changed[@]} -gt 0 ] || { echo "No C++ file to check"; exit 0; }

install_missing clang-format-14
echo "Checking the layout of ${#changed[@]} files"
clang-format-14 --dry-run -Werror "${changed[@]}"
[ -z "$format_only" ] || exit 0

install_missing "${quillery_build_packages[@]}" clang-tidy-14
cmake --preset tidy >/dev/null # how each file is compiled; nothing is built
mapfile -t units < <(translation_units "${changed[@]}")
[ ${#units[@]} -gt 0 ] || exit 0
echo "Running clang-tidy on ${#units[@]} files"
printf '%s\n' "${units[@]}" | xargs -n 1 -P "$(nproc)" clang-tidy-14 -p build/tidy --quiet 2>/dev/null

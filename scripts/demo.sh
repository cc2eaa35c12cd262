#!/usr/bin/env bash
# Builds the library and shows texts of the example catalogues in several locales.
set -euo pipefail
cd "$(dirname "$0")/.."
source scripts/common.sh
show_help "$@"

need_packages "${BUILD_PACKAGES[@]}"
echo "Building into build/release."
quietly cmake --preset release
quietly cmake --build --preset release

catalogues=examples/catalogues/resources
kxxlate() {
  printf '\n$ kxxlate'
  printf ' %q' "$@"
  printf '\n'
  build/release/tools/kxxlate --resources "$catalogues" "$@"
}

printf '\nThe bundles in %s, with their locales:\n' "$catalogues"
kxxlate bundles
printf '\nOne text in six locales, with two values inserted:\n'
for locale in en fr de ja zh-Hant-TW ar; do
  kxxlate get agent "$locale" WELCOME_USER Ann 3
done
printf '\nEach language has its own order:\n'
kxxlate get agent en FILES_COPIED 3 10 /srv/data
kxxlate get agent ja FILES_COPIED 3 10 /srv/data
printf '\nA locale without a file is answered by a shorter one (de), or by the default (en):\n'
kxxlate get agent de-AT SERVICE_STARTED backup alpha 4.2
kxxlate get agent pt-BR SERVICE_STARTED backup alpha 4.2
printf '\nValues that a text has no place for are kept:\n'
kxxlate get agent fr-CA CANNOT_OPEN_FILE a.txt denied
printf '\nLanguage files answer where there is no property bundle; those of Canada override:\n'
kxxlate get gateway fr WELCOME Ann alpha
kxxlate get gateway fr-CA WELCOME Ann alpha
kxxlate prompt gateway fr-CA LOGIN_PROMPT
kxxlate label gateway ar OK
printf '\nA language without files is answered by English:\n'
kxxlate get gateway pt WELCOME Ann alpha
printf '\nWhat a translator says of itself:\n'
kxxlate info agent fr-CA
kxxlate info gateway ar

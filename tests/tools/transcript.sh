# shellcheck shell=sh
# What the commands of all transcripts can use.

zkstrings() { "$ZK_COMMAND" "$@"; }

# try FILE CONTENT...: Writes each CONTENT in turn into FILE ("·" is a no-break space), checks the project with the options
# that its file "options" holds, and restores the project. FILE may be a language, which means its table. The answer leaves
# out the name of FILE.
try() (
  case $1 in
    */*) file=$1 ;;
    *) file=resources/$1.lproj/Localizable.strings ;;
  esac
  shift
  mkdir .before && cp -r catalogue resources .before
  mkdir -p "${file%/*}"
  status=0
  for content; do
    printf %s "$content" | sed "s/·/$(printf '\302\240')/g" >"$file"
    # shellcheck disable=SC2046 # Blanks separate the options.
    zkstrings check $(test ! -e options || cat options) >.answer || status=$?
    sed "s|^$file:||" .answer
  done
  rm -r catalogue resources .answer && mv .before/* . && rmdir .before
  exit $status
)

# bring FILE OPTION...: Writes standard input into FILE, imports it, prints what that changes in the German table, and
# restores the table. A second import must change nothing.
bring() (
  table=resources/de.lproj/Localizable.strings
  cat >"$1" && cp $table .before
  zkstrings import "$@" --quiet
  status=$?
  if ! diff .before $table; then
    zkstrings import "$@" --quiet | grep ' [acm][a-z]*ed'
  fi
  mv .before $table
  exit $status
)

#!/usr/bin/env bash
# Shows that each lint catches what it must, and lets pass what it may, on small trees in a temporary folder.
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd -P)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cases=0
wrong=0

# An empty tree with the one file `path`, which holds the text of standard input.
tree() {
  rm -rf "$work/tree"
  mkdir -p "$work/tree"
  add "$1"
}
add() {
  mkdir -p "$work/tree/$(dirname "$1")"
  cat >"$work/tree/$1"
}

# Runs a lint over the tree. It must fail and print `finding`, or with `clean` for a finding pass and print nothing.
expect() {
  local lint=$1 finding=$2 output status=0
  output=$(python3 "$here/check_$lint.py" "$work/tree" 2>&1) || status=$?
  cases=$((cases + 1))
  if [[ $finding == clean ]]; then
    if ((status == 0)) && [[ -z $output ]]; then return; fi
  elif ((status == 1)) && [[ $output == *"$finding"* ]]; then
    return
  fi
  wrong=$((wrong + 1))
  printf 'line %d: %s should have said "%s"; it ended with %d and said:\n%s\n' \
    "${BASH_LINENO[0]}" "$lint" "$finding" "$status" "$output"
}

expect_include() {
  printf '#include %s\n' "$2" | tree "$1"
  expect includes "$3"
}

while IFS='|' read -r file include finding; do
  expect_include "$file" "$include" "$finding"
done <<'END'
src/core/A.cpp|"platform/Loop.h"|clean
src/core/A.cpp|<algorithm>|clean
src/join/A.cpp|"query/Reply.h"|clean
src/maps/A.cpp|"query/Reply.h"|clean
src/maps/A.cpp|"export/Text.h"|clean
src/desktop/A.cpp|<QWidget>|clean
src/desktop/A.cpp|<sys/socket.h>|clean
src/app/A.cpp|"desktop/Window.h"|clean
tests/A.cpp|"sandbox/World.h"|clean
sandbox/A.cpp|<sys/socket.h>|clean
src/platform/A.h|"core/Text.h"|platform must not use core
src/core/A.h|"query/Reply.h"|core must not use query
src/query/A.h|"browser/Find.h"|query must not use browser
src/browser/A.h|"query/Reply.h"|browser must not use query
src/export/A.h|"maps/Install.h"|export must not use maps
src/query/A.cpp|"desktop/Window.h"|query must not use desktop
src/desktop/A.cpp|"app/Parts.h"|desktop must not use app
src/core/A.cpp|"../platform/Loop.h"|must not go upwards
src/core/A.cpp|"Text.h"|a header is included as
src/core/A.cpp|<platform/Loop.h>|in quotes
src/platform/A.cpp|<QString>|only the standard library
src/query/A.cpp|<unistd.h>|only the standard library
src/query/A.cpp|<sys/socket.h>|only the standard library
src/maps/A.cpp|<curl/curl.h>|only the standard library
src/maps/A.cpp|<zip.h>|only the standard library
src/core/A.cpp|<windows.h>|only the standard library
src/news/A.cpp|<string>|has no floor yet
src/desktop/A.cpp|"sandbox/World.h"|must not know the sandbox
sandbox/A.cpp|"core/Text.h"|must not know the program
END

printf '// #include <QString>\n/*\n#include "desktop/Window.h"\n*/\n' | tree src/core/A.cpp
expect includes clean
printf '#include "core/B.h"\n' | tree src/core/A.h
printf '#include "core/C.h"\n' | add src/core/B.h
expect includes clean
printf '#include "core/A.h"\n' | add src/core/C.h
expect includes "circle of includes: src/core/A.h -> src/core/B.h -> src/core/C.h -> src/core/A.h"

# The ratchet: a known sin is tolerated, a new one beside it is not, and one that is gone must leave the list.
sin="includes: src/core/A.h includes query/Reply.h: core must not use query"
printf '#include "query/Reply.h"\n' | tree src/core/A.h
printf '# known\n%s\n' "$sin" | add tools/known_sins.txt
expect includes clean
printf '#include "query/Reply.h"\n' | add src/core/B.h
expect includes "src/core/B.h includes query/Reply.h"
printf '#include <string>\n' | tree src/core/A.h
printf '%s\n' "$sin" | add tools/known_sins.txt
expect includes "remove this line"
printf 'something else\n' | add tools/known_sins.txt
expect includes "belongs to no lint"

lines() { for ((i = 0; i < $1; i++)); do printf '%s\n' "${2:-  step();}"; done; }

lines 250 "int a();" | tree src/core/A.h
expect sizes clean
lines 251 "int a();" | tree src/core/A.h
expect sizes "src/core/A.h has more than 250 lines"
lines 500 "int a();" | tree src/core/A.cpp
expect sizes clean
lines 501 "int a();" | tree src/core/A.cpp
expect sizes "src/core/A.cpp has more than 500 lines"

# The body with its two braces' lines: 60 lines pass, 61 do not, whatever the head looks like.
while IFS='|' read -r head name; do
  { printf '%s {\n' "$head" && lines 58 && printf '}\n'; } | tree src/core/A.cpp
  expect sizes clean
  { printf '%s {\n' "$head" && lines 59 && printf '}\n'; } | tree src/core/A.cpp
  expect sizes "A.cpp: $name has more than 60 lines"
done <<'END'
void Grid::fill(int rows, Cell cell = {}) const noexcept|Grid::fill
Grid::Grid(int rows) : rows_{rows}, cells_(3), more_{{1, 2}}|Grid::Grid
auto find(std::string_view name) -> std::vector<int>|find
template <class T> T& pick(std::array<T, 3>& from)|pick
namespace vantrel { namespace { struct Row { int a{1}; }; class Grid final : public Base { public: void fill()|fill
TEST(Grid, a_full_server_is_red)|TEST(Grid, a_full_server_is_red)
bool Row::operator==(const Row& other) const|Row::operator==
END

{ printf 'const Row rows[] = {\n' && lines 90 '    {"a", 1},' && printf '};\n'; } | tree src/core/A.cpp
expect sizes clean
{
  printf 'void f() {\n  const std::vector<Row> rows = {\n' && lines 90 '    {"a", 1},'
  printf '  };\n  const std::vector<Row> more{\n' && lines 90 '    {"a", 1},' && printf '  };\n}\n'
} | tree src/core/A.cpp
expect sizes clean
{
  printf "void f() {\n  // }{{\n  g('{', \"{\", R\"(\n{\n)\", 1'000);\n}\n/*\n"
  lines 70 && printf '{ */\nnamespace a {\nint g(int);\n' && lines 70 "int h();" && printf '}\n'
} | tree src/core/A.cpp
expect sizes clean

# The words are put together here, or this file would be a finding itself.
while IFS='|' read -r file text finding; do
  printf '%s\n' "${text//^/}" | tree "$file"
  expect words "$finding"
done <<'END'
docs/A.md|See Part ^2.3 there.|refers to a chapter
docs/A.md|See Parts ^1.1, 2.3 there.|refers to a chapter
docs/A.md|Part of it, 2.3 parts and version 2.3.|clean
src/core/A.cpp|// As the ^spec has it.|refers to a paper
README.md|The Sp^ecification asks for it.|refers to a paper
README.md|In sp^ec.md.|refers to a paper
README.md|A special, specified spectrum; the specific case.|clean
tests/A.cpp|"/wo^rk/main/A"|names a folder
test|cd /tm^p/bash_jobs|names a folder
README.md|https://example.test/wo^rk/ and src/wo^rk/A, /tmp/a|clean
src/core/A.h|  int mi^n = 0;|"min" is a macro
src/core/A.h|  Field<std::vector<int>> ma^x{1};|"max" is a macro
src/core/A.h|  const Signal& signa^ls() const;|"signals" is a macro
src/core/A.h|  void em^it(int value);|"emit" is a macro
src/core/A.h|  Timer* nea^r;|"near" is a macro
src/core/A.h|enum class Distance { nea^r, fa^r };|"far" is a macro
src/core/A.h|  auto a = std::min(b, std::max(c, 1)) + std::numeric_limits<int>::max();|clean
src/core/A.h|  if (a > min(b, c) && max(a, b) * min(a, b) < 3) return max(a, b);|clean
src/core/A.h|  int minimum, slotsLeft; // int min;|clean
src/core/A.h|  g("int min;"); widget->signals();|clean
END
printf 'int min;\0' | tree fuzz/corpus/a
expect words clean

printf '%d cases, %d wrong\n' "$cases" "$wrong"
((wrong == 0))

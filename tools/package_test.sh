# The work of ./dev package --test, which reads this file behind tools/fresh.sh: the packages on a
# bare Debian 12. Both are installed, and a user who is not root runs the program until it has loaded
# the simulated trailer and made its folder in his documents, and the bench until it stands. Without
# the trailer's package the program runs on a library that LORIMET32 names. Then both are taken away,
# and the archives are unpacked and run.
# shellcheck shell=bash disable=SC2154  # what dev and tools/fresh.sh define

# package_test <folder of the packages>
package_test() {
  local packages=$1 fresh_copy result=0
  fresh_make_copy
  say "On a bare Debian 12: install, run, take away"
  mkdir -p "$fresh_copy$fresh_home"
  cp "$packages"/*.deb "$packages"/*.tar.gz tools/package_test_inside.sh "$fresh_copy$fresh_home"
  within_fresh "$fresh_copy" bash package_test_inside.sh || result=$?
  if ((result == 0)); then
    say "The packages install, run and leave nothing behind"
  elif ((result == not_here)); then
    cannot "The packages were not tested: the package sources do not answer."
  else
    fail "The packages failed on a bare Debian 12; the reason stands above."
  fi
}

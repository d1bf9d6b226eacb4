#!/usr/bin/env bash
# What is done with the packages within the bare system; they lie in the working folder.
set -euo pipefail
export DEBIAN_FRONTEND=noninteractive LC_ALL=C.UTF-8
readonly not_here=75
readonly user=technician
readonly files="/home/$user/Documents/Norvick Lorimet"

fail() {
  printf '    %s\n' "$*" >&2
  exit 1
}

install_packages() {
  apt-get -q update >apt.log 2>&1 || exit $not_here
  apt-get -q install --yes --no-install-recommends ./*.deb >>apt.log 2>&1 || {
    if grep -qE 'Failed to fetch|Could not (resolve|connect)|Temporary failure' apt.log; then
      exit $not_here
    fi
    tail -n 20 apt.log >&2
    fail "The packages cannot be installed."
  }
}

# Until the program has loaded the library and made its folder.
run_program() {
  useradd --create-home "$user"
  setpriv --reuid="$user" --regid="$user" --clear-groups \
    env -i HOME="/home/$user" USER="$user" PATH=/usr/bin:/bin LC_ALL=C.UTF-8 \
    QT_QPA_PLATFORM=offscreen lorimet >run.log 2>&1 &
  local program=$! tries
  for ((tries = 0; tries < 300; ++tries)); do
    kill -0 "$program" 2>/dev/null || {
      cat run.log >&2
      fail "The program has ended by itself."
    }
    if grep -q /usr/bin/libLorimet32.so "/proc/$program/maps" && [[ -d $files ]]; then
      kill "$program"
      wait "$program" || true
      return
    fi
    sleep 0.1
  done
  kill "$program"
  fail "The program has not loaded /usr/bin/libLorimet32.so, or not made \"$files\"."
}

take_away() {
  dpkg -L norvick-lorimet norvick-lorimet-simulator | sort -u >installed
  apt-get -q purge --yes norvick-lorimet norvick-lorimet-simulator >>apt.log 2>&1 ||
    fail "The packages cannot be taken away."
  local path
  while IFS= read -r path; do
    if [[ -f $path || $path == */norvick-lorimet* && -e $path ]]; then
      fail "$path is left behind."
    fi
  done <installed
  [[ -d $files ]] || fail "What the user has kept is gone with the packages."
}

install_packages
for path in /usr/bin/lorimet /usr/share/applications/norvick-lorimet.desktop \
  /usr/share/metainfo/com.norvick.Lorimet.metainfo.xml \
  /usr/share/icons/hicolor/48x48/apps/norvick-lorimet.png \
  /usr/share/norvick-lorimet/help/fr/index.html \
  /usr/share/norvick-lorimet/scenarios/healthy_4s2m.scenario; do
  [[ -f $path ]] || fail "$path is in no package."
done
[[ $(dpkg -S /usr/bin/libLorimet32.so) == norvick-lorimet-simulator:* ]] ||
  fail "The simulated trailer is no package of its own."
run_program
take_away

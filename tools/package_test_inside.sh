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

# as_user <what it is for> <where it is there: a shell command with the process in $program>
#   <command> [arguments]: runs until it is there.
as_user() {
  local purpose=$1 there=$2 program tries
  shift 2
  setpriv --reuid="$user" --regid="$user" --clear-groups \
    env -i HOME="/home/$user" USER="$user" PATH=/usr/bin:/bin LC_ALL=C.UTF-8 \
    XDG_RUNTIME_DIR="/home/$user/run" QT_QPA_PLATFORM=offscreen "$@" >run.log 2>&1 &
  program=$!
  for ((tries = 0; tries < 300; ++tries)); do
    kill -0 "$program" 2>/dev/null || {
      cat run.log >&2
      fail "$purpose has ended by itself."
    }
    if eval "$there"; then
      kill "$program"
      wait "$program" || true
      return
    fi
    sleep 0.1
  done
  kill "$program"
  cat run.log >&2
  fail "$purpose is not there: $there"
}
has_loaded() { grep -qF "$1" "/proc/$2/maps"; }

# shellcheck disable=SC2016  # evaluated where the process is known
run_all() {
  useradd --create-home "$user"
  install -d -o "$user" -g "$user" -m 0700 "/home/$user/run"
  as_user "The program" 'has_loaded /usr/bin/libLorimet32.so "$program" && [[ -d $files ]]' lorimet
  as_user "The bench" '[[ -S /home/$user/run/norvick-lorimet/trailer.bench ]]' lorimet_bench_window
}

# shellcheck disable=SC2016
run_without_trailer() {
  cp /usr/bin/libLorimet32.so "/home/$user/libOther.so"
  apt-get -q purge --yes norvick-lorimet-simulator >>apt.log 2>&1 ||
    fail "The simulated trailer cannot be taken away alone."
  as_user "The program on another library" 'has_loaded "/home/$user/libOther.so" "$program"' \
    env LORIMET32="/home/$user/libOther.so" lorimet
}

take_away() {
  apt-get -q purge --yes norvick-lorimet >>apt.log 2>&1 ||
    fail "The packages cannot be taken away."
  local path
  while IFS= read -r path; do
    if [[ -f $path || $path == */norvick-lorimet* && -e $path ]]; then
      fail "$path is left behind."
    fi
  done <installed
  path=$(find / -xdev -name '*orimet*' -not -path "$PWD*" -not -path "/home/$user/*" \
    -not -path '/proc/*' -print -quit)
  [[ -z $path ]] || fail "$path is left behind."
  [[ -d $files ]] || fail "What the user has kept is gone with the packages."
}

# The two archives in one folder are a program with its trailer.
# shellcheck disable=SC2016
run_archives() {
  local place=/home/$user/lorimet archive
  install -d -o "$user" -g "$user" "$place"
  for archive in ./*.tar.gz; do
    tar -xzf "$archive" -C "$place" --strip-components=1 --no-same-owner
  done
  chown -R "$user:$user" "$place"
  as_user "The unpacked program" 'has_loaded "$place/bin/libLorimet32.so" "$program"' \
    "$place/bin/lorimet"
}

install_packages
for path in /usr/bin/lorimet /usr/share/applications/norvick-lorimet.desktop \
  /usr/share/metainfo/com.norvick.Lorimet.metainfo.xml \
  /usr/share/icons/hicolor/48x48/apps/norvick-lorimet.png \
  /usr/share/norvick-lorimet/help/fr/index.html; do
  [[ $(dpkg -S "$path") == norvick-lorimet:* ]] || fail "$path is not in the program's package."
done
for path in /usr/bin/libLorimet32.so /usr/bin/lorimet_bench_window \
  /usr/share/applications/norvick-lorimet-bench.desktop \
  /usr/share/norvick-lorimet/scenarios/healthy_4s2m.scenario; do
  [[ $(dpkg -S "$path") == norvick-lorimet-simulator:* ]] ||
    fail "$path is not in the simulated trailer's package."
done
[[ $(dpkg-query -W -f '${binary:Summary}' norvick-lorimet-simulator) == "simulated trailer "* ]] ||
  fail "The simulated trailer's package tells of another one."
dpkg -L norvick-lorimet norvick-lorimet-simulator | sort -u >installed
run_all
run_without_trailer
take_away
run_archives

# The work of ./dev fresh, which reads this file: a bare Debian 12 is made once and kept outside the
# tree; each run takes a copy of it, clones the committed HEAD into the copy, and does there what a
# stranger would do. The run has its own mounts and processes, so nothing of it outlives it, however
# it ends.
# shellcheck shell=bash

readonly fresh_suite=bookworm
readonly fresh_cache=${XDG_CACHE_HOME:-$HOME/.cache}/norvick-lorimet/fresh
readonly fresh_home=/home/lorimet  # the clone, seen from inside

# Where this system gets Debian 12 from, if it does; otherwise where everybody does.
fresh_sources() {
  local found
  found=$(
    {
      cat /etc/apt/sources.list /etc/apt/sources.list.d/*.list 2>/dev/null |
        grep -E "^deb [^#]*/debian(-security)?/? +$fresh_suite(-updates|-security)? "
      awk -v suite="$fresh_suite" 'BEGIN { RS = ""; ORS = "\n\n" }
        /(^|\n)Types: *deb/ && $0 ~ "\nSuites:[^\n]*" suite &&
        /\nURIs:[^\n]*\/debian(-security)?\/?(\n|$)/' /etc/apt/sources.list.d/*.sources
    } 2>/dev/null
  ) || true
  if [[ -n $found ]]; then
    printf '%s\n' "$found"
    return
  fi
  cat <<TEXT
deb http://deb.debian.org/debian $fresh_suite main
deb http://deb.debian.org/debian $fresh_suite-updates main
deb http://deb.debian.org/debian-security $fresh_suite-security main
TEXT
}

# How this system reaches its sources: proxies, retries, what it says to a wrong clock.
fresh_apt_options() {
  apt-config dump | grep -E '^Acquire::(https?|ftp|Retries|ForceIPv[46]|Check-[A-Za-z-]+)(::| )' |
    grep -v ' "";$' || true
}

# Makes the bare system, if there is none or it was made from other sources than today's.
fresh_base() {
  local base=$fresh_cache/base sources options wanted
  sources=$(fresh_sources)
  options=$(fresh_apt_options)
  wanted=$(printf '%s\n' 2 "$sources" "$options" | cksum)
  if [[ -f $base.made && $(<"$base.made") == "$wanted" ]]; then return; fi
  need mmdebstrap
  say "Making a bare Debian 12 in $base"
  rm -rf --one-file-system "$base" "$base.made" "$base.new"
  local log=$fresh_cache/base.log folder
  folder=$(mktemp -d)
  printf '%s\n' "$options" >"$folder/apt.conf"
  if [[ $sources == *URIs:* ]]; then
    printf '%s\n' "$sources" >"$folder/debian.sources"
  else
    printf '%s\n' "$sources" >"$folder/debian.list"
  fi
  if ! mmdebstrap --variant=minbase --include=git,ca-certificates \
    --aptopt="$folder/apt.conf" "$fresh_suite" "$base.new" "$folder"/debian.* \
    >"$log" 2>&1 </dev/null; then
    rm -rf --one-file-system "$base.new" "$folder"
    if grep -qE 'Failed to fetch|Could not (resolve|connect)|Temporary failure|Unable to connect' \
      "$log"; then
      cannot "No fresh system: the package sources do not answer (see $log)."
    fi
    tail -n 20 "$log" >&2
    fail "The bare system could not be made (see $log)."
  fi
  rm -rf "$folder"
  mv "$base.new" "$base"
  printf '%s' "$wanted" >"$base.made"
}

# Where what was compiled is kept: the same source, with the same headers, by the same compiler, which
# is asked for each of them, is not compiled twice. Linking and all the rest is done anew.
fresh_compiled() {
  ccache --get-config cache_dir 2>/dev/null || printf '%s' "$fresh_cache/ccache"
}

# Runs a command in the clone inside the copy. Its mounts and processes are its own; they vanish with
# it, and it ends with this script.
within_fresh() {
  local root=$1 compiled
  shift
  compiled=$(fresh_compiled)
  mkdir -p "$compiled"
  # shellcheck disable=SC2016  # expanded inside
  setpriv --pdeathsig KILL unshare --mount --pid --ipc --uts --fork --kill-child --propagation private -- \
    bash -ceu '
      root=$1 cache=$2 compiled=$3 home=$4
      shift 4
      mount -t proc proc "$root/proc"
      mount --rbind /dev "$root/dev"
      mount -t tmpfs -o mode=1777 tmp "$root/run"
      mount --bind "$cache/debs" "$root/var/cache/apt/archives"
      mkdir -p "$root/var/cache/ccache"
      mount --bind "$compiled" "$root/var/cache/ccache"
      exec chroot "$root" /usr/bin/env -i HOME=/root USER=root LOGNAME=root SHELL=/bin/bash \
        PATH=/usr/local/sbin:/usr/local/bin:/usr/sbin:/usr/bin:/sbin:/bin \
        TERM="${TERM:-dumb}" LANG=C.UTF-8 CCACHE_DIR=/var/cache/ccache bash -ceu "cd \"\$1\"; shift; exec \"\$@\"" bash \
        "$home" "$@"
    ' bash "$root" "$fresh_cache" "$compiled" "$fresh_home" "$@" </dev/null
}

# A copy of the bare system for this run alone; `fresh_copy` names it. It goes with this script.
fresh_make_copy() {
  [[ $(id -u) == 0 ]] || cannot "No fresh system: making one needs root (sudo ./dev ...)."
  command -v apt-get >/dev/null || cannot "No fresh system: this is no Debian-like system."
  unshare --mount --pid --fork true 2>/dev/null ||
    cannot "No fresh system: this system allows no mounts of its own (a container?)."
  mkdir -p "$fresh_cache/debs/partial"
  exec 9>"$fresh_cache/lock"
  if ! flock --nonblock 9; then
    say "Waiting for another fresh run to end"
    flock 9
  fi
  fresh_base
  rm -rf --one-file-system "$fresh_cache"/run.*  # of a run that was killed
  fresh_copy=$(mktemp -d "$fresh_cache/run.XXXXXX")
  # shellcheck disable=SC2064  # the folder of this run
  trap "rm -rf --one-file-system '$fresh_copy'" EXIT
  trap 'exit 130' INT
  trap 'exit 143' TERM HUP
  cp -a "$fresh_cache/base/." "$fresh_copy"
  cp --remove-destination "$(readlink -f /etc/resolv.conf)" "$fresh_copy/etc/resolv.conf"
}

# fresh_root [command of ./dev with its arguments]
fresh_root() {
  if [[ -n $(git status --porcelain --untracked-files=no) ]]; then
    say "The fresh system gets the last commit, without the changes that are not committed"
  fi
  local fresh_copy
  fresh_make_copy
  local root=$fresh_copy
  git clone --quiet --depth 1 "file://$PWD" "$root$fresh_home" 2>/dev/null ||
    fail "The commit could not be cloned into $root."
  local result=0 start=$SECONDS
  if (($# > 0)); then
    fresh_step "$root" "$@" || result=$?
  else
    fresh_step "$root" run && fresh_step "$root" test || result=$?
  fi
  fresh_keep "$root"
  ((result == 0)) && say "The fresh system is content, after $((SECONDS - start)) s"
  return "$result"
}

fresh_step() {
  local root=$1 start=$SECONDS result=0
  shift
  say "On a fresh Debian 12: ./dev $*"
  within_fresh "$root" ./dev "$@" || result=$?
  say "./dev $* on a fresh Debian 12 ended with $result after $((SECONDS - start)) s"
  return "$result"
}

# What a person would want to see of it afterwards.
fresh_keep() {
  local root=$1
  rm -rf build/fresh
  mkdir -p build/fresh
  local path
  for path in build/apt.log build/dev/tour build/dev/Testing/Temporary; do
    if [[ -e $root$fresh_home/$path ]]; then cp -a "$root$fresh_home/$path" build/fresh/; fi
  done
}

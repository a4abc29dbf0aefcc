#!/usr/bin/env bash
# Makes the packages of a build and looks into each:
# package_test.sh SOURCE BUILD OBJDUMP NUMBER-OF-PACKAGES
set -euo pipefail
export LC_ALL=C

source=$1
build=$2
objdump=$3
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

version=$(sed -n 's/^CMAKE_PROJECT_VERSION:STATIC=//p' "$build/CMakeCache.txt")
(cd "$build" && cpack -B "$work/made" >"$work/log") || { cat "$work/log"; exit 1; }

# Demands that the folder of a package holds the files named and no other.
holds() {
  local folder=$1
  shift
  diff <(cd "$folder" && find . ! -type d -printf '%P\n' | sort) <(printf '%s\n' "$@" | sort)
}

# Demands that a library of a package exports what it should.
exports() {
  "$source/tests/check_symbols.sh" "$1" "$objdump"
}

cmake_files=(lib/cmake/Velkord/Velkord{Config,ConfigVersion,Targets,Targets-release}.cmake)
common=(include/{Velkord.h,velkord.hpp} lib/pkgconfig/velkord.pc "${cmake_files[@]}")
major=${version%%.*}

for package in "$work"/made/*; do
  name=$(basename "$package")
  mkdir "$work/unpacked"
  case $name in
    velkord-"$version"-linux-*.tar.gz)
      tar -xzf "$package" -C "$work/unpacked" --strip-components=1
      holds "$work/unpacked" "${common[@]}" lib/libVelkord.so{,".$major",".$version"}
      exports "$work/unpacked/lib/libVelkord.so"
      ;;
    libvelkord"$major"_"$version"_*.deb)
      dpkg-deb -x "$package" "$work/unpacked"
      holds "$work/unpacked/usr" lib/libVelkord.so{".$major",".$version"}
      exports "$work/unpacked/usr/lib/libVelkord.so.$major"
      [[ $(dpkg-deb -f "$package" Depends) == libc6* ]]
      ;;
    libvelkord-dev_"$version"_*.deb)
      dpkg-deb -x "$package" "$work/unpacked"
      holds "$work/unpacked/usr" "${common[@]}" lib/libVelkord.so
      [ "$(dpkg-deb -f "$package" Depends)" = "libvelkord$major (= $version)" ]
      ;;
    velkord-"$version"-windows-*.zip)
      unzip -q "$package" -d "$work/unpacked"
      mv "$work/unpacked/${name%.zip}"/* "$work/unpacked"
      rmdir "$work/unpacked/${name%.zip}"
      holds "$work/unpacked" "${common[@]}" bin/Velkord.dll lib/{libVelkord.dll.a,Velkord.def}
      exports "$work/unpacked/bin/Velkord.dll"
      diff "$source/tests/exported_names.txt" \
        <(sed -n 's/^    \([A-Za-z0-9_]*\) @[0-9]*.*$/\1/p' "$work/unpacked/lib/Velkord.def" | sort)
      ;;
    _CPack_Packages) ;;
    *)
      echo "$name is not expected." >&2
      exit 1
      ;;
  esac
  rm -r "$work/unpacked"
  [ "$name" = _CPack_Packages ] || echo "$name: good"
done

made=("$work"/made/*.*)
[ "${#made[@]}" -eq "$4" ]

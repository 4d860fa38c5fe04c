#!/usr/bin/env bash
# Installs the build into a temporary prefix and checks the installed program as a user meets
# it: the batch tool runs from bin/ on the installed data, the editor starts on a read-only data
# folder and makes the user's own application folder, and the desktop files validate.
set -euo pipefail
build="$1"
root="$(mktemp -d /tmp/lathwick-install-XXXXXX)"
cleanup() { chmod -R u+w "$root" 2>/dev/null || true; rm -rf "$root"; }
trap cleanup EXIT
fail() { echo "FAIL: $*" >&2; exit 1; }

prefix="$root/usr"
cmake --install "$build" --prefix "$prefix" >/dev/null
for f in bin/lathwick bin/lathwick-cli share/lathwick/Lathwick.dat share/lathwick/Script/main.vbs \
         share/lathwick/help/index.html share/applications/org.lathwick.Lathwick.desktop \
         share/metainfo/org.lathwick.Lathwick.metainfo.xml share/mime/packages/org.lathwick.Lathwick.xml \
         share/icons/hicolor/scalable/apps/org.lathwick.Lathwick.svg share/man/man1/lathwick.1 \
         share/man/man1/lathwick-cli.1; do
  [[ -e "$prefix/$f" ]] || fail "$f was not installed"
done

# The batch tool finds the installed scheme data file and takes the dialogs' defaults.
[[ "$("$prefix/bin/lathwick-cli" --version)" == "lathwick-cli "* ]] || fail "--version"
printf 'G00 X1\r\n(CHECK)\r\nG01 X2\r\n' > "$root/in.nc"
"$prefix/bin/lathwick-cli" renumber "$root/in.nc" - > "$root/out.nc"
[[ "$(cat "$root/out.nc")" == $'N100G00 X1\r\n(CHECK)\r\nN101G01 X2\r' ]] || fail "renumber: $(od -c "$root/out.nc")"
"$prefix/bin/lathwick-cli" colorize --view modes "$root/in.nc" "$root/out.rtf"
grep -q '^{\\rtf1' "$root/out.rtf" || fail "colorize did not use the installed schemes"

# The editor on a read-only installed data folder works in the user's own folder.
chmod -R a-w "$prefix/share/lathwick"
export HOME="$root/home" XDG_DATA_HOME="$root/home/data" XDG_CONFIG_HOME="$root/home/config"
mkdir -p "$HOME"
"$prefix/bin/lathwick" --quit-after-start "$prefix/share/lathwick/samples/bracket.nc" || fail "the editor did not start"
user="$XDG_DATA_HOME/lathwick"
for f in Lathwick.dat SendTo.dat Script/main.vbs help/index.html; do
  [[ -f "$user/$f" ]] || fail "the user's folder lacks $f"
done
grep -q "app_path=$user/" "$XDG_CONFIG_HOME/Lathwick/Lathwick.ini" || fail "app_path is not the user's folder"
[[ -z "$(find "$prefix/share/lathwick" -newer "$root/in.nc" -type f)" ]] || fail "the installed folder was written"
# A second start keeps what the user changed.
echo "' the user's own" > "$user/Script/main.vbs"
"$prefix/bin/lathwick" --quit-after-start || fail "the editor did not start again"
[[ "$(cat "$user/Script/main.vbs")" == "' the user's own" ]] || fail "the user's main.vbs was replaced"

# The desktop entry and the metainfo validate (when the validators are installed).
if command -v desktop-file-validate >/dev/null; then
  desktop-file-validate "$prefix/share/applications/org.lathwick.Lathwick.desktop"
fi
if command -v appstreamcli >/dev/null; then
  appstreamcli validate --no-net "$prefix/share/metainfo/org.lathwick.Lathwick.metainfo.xml" >/dev/null
fi
echo "installed into $prefix: all checks passed"

#!/bin/sh
# Makes the five pictures of the folding easel from their SVG sources.
# Needs rsvg-convert (librsvg2-bin), ImageMagick (imagemagick) and a sans serif font that the
# drawings name (Liberation Sans or Arial).
set -eu

here=$(CDPATH= cd -- "$(dirname -- "$0")" && pwd)
src=$here/figures/src
out=$here/figures

fail() { echo "make-figures.sh: $1" >&2; exit 1; }
command -v rsvg-convert >/dev/null || fail "rsvg-convert is not installed (Debian: librsvg2-bin)"
convert -version 2>/dev/null | grep -q '^Version: ImageMagick' || fail "ImageMagick's convert is not installed (Debian: imagemagick)"

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
for n in 1 2 3 4 5; do
    rsvg-convert "$src/fig$n.svg" -o "$work/fig$n.png"
done

plain='-define png:exclude-chunks=date,time -strip -colorspace Gray'
# shellcheck disable=SC2086 # the options are meant to be split
{
    convert "$work/fig1.png" $plain -colors 32 "$out/fig1.png"
    convert "$work/fig2.png" $plain -colors 32 "$out/fig2.png"
    convert "$work/fig3.png" $plain -quality 92 "$out/fig3.jpg"
    # One bit for each pixel: black and white.
    convert "$work/fig4.png" $plain -threshold 62% -type bilevel "BMP3:$out/fig4.bmp"
    convert "$work/fig5.png" $plain +dither -colors 16 "$out/fig5.gif"
}

#!/bin/sh
# Renders every SVG of this folder to PNG at 1x and 2x, the application icon at all its sizes and as
# ../lorimet.ico, and the bench's icon.
# Needs rsvg-convert and ImageMagick's convert.
set -eu
cd "$(dirname "$0")"

for svg in *.svg; do
  name=${svg%.svg}
  case $name in lorimet*) continue ;; esac
  rsvg-convert "$svg" -o "$name.png"
  rsvg-convert -z 2 "$svg" -o "$name@2x.png"
done

# Up to 32 pixels the icon is drawn from its simpler version.
for size in 16 20 24 32 48 64 128 256; do
  source=lorimet.svg
  if [ "$size" -le 32 ]; then source=lorimet_small.svg; fi
  rsvg-convert -w "$size" -h "$size" "$source" -o "lorimet_$size.png"
done

for size in 48 64 128; do
  rsvg-convert -w "$size" -h "$size" ../bench/norvick-lorimet-bench.svg \
    -o "../bench/norvick-lorimet-bench_$size.png"
done

cp lorimet_64.png lorimet.png
cp lorimet_128.png lorimet@2x.png

convert lorimet_16.png lorimet_20.png lorimet_24.png lorimet_32.png lorimet_48.png \
  lorimet_64.png lorimet_128.png lorimet_256.png ../lorimet.ico

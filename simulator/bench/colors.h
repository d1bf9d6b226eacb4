// The colours of the bench's drawing, by the light or the dark of the palette.
#pragma once

#include <QColor>
#include <QPalette>

namespace lorimet::bench {

struct Colors {
  explicit Colors(const QPalette& palette)
      : dark(palette.color(QPalette::Window).lightness() < 128),
        accent(palette.color(QPalette::Highlight)),
        words(palette.color(QPalette::WindowText)),
        faint(dark ? "#aab5bf" : "#5b6670"),
        line(dark ? "#5b6670" : "#8b97a3"),
        ground(palette.color(QPalette::Base)),
        body(dark ? "#2f3943" : "#e6edf3"),
        part(dark ? "#3d4853" : "#fbfcfd"),
        tyre(dark ? "#14181c" : "#39424b"),
        tread(dark ? "#4a5763" : "#6f7a85"),
        advised(dark ? "#ffb84d" : "#b35c00"),
        advised_ground(dark ? "#4a3510" : "#fff1d6"),
        lamp(dark ? "#ffc233" : "#f5a800"),
        stop_light(dark ? "#ff5a4d" : "#d92a1c"),
        out(dark ? "#59636d" : "#c3ccd5") {}

  // Of a line or a brake under so many psi: from the pale of none to the blue of 120.
  QColor Pressure(double psi) const {
    const QColor none = dark ? QColor("#48525c") : QColor("#c3ccd5");
    const QColor full = dark ? QColor("#6cb6ff") : QColor("#1f5f99");
    const double share = psi < 0.5 ? 0 : 0.25 + 0.75 * qBound(0.0, psi / 120, 1.0);
    const auto mix = [share](int from, int to) {
      return static_cast<int>(from + (to - from) * share);
    };
    return {mix(none.red(), full.red()), mix(none.green(), full.green()),
            mix(none.blue(), full.blue())};
  }

  bool dark;
  QColor accent;
  QColor words;
  QColor faint;
  QColor line;
  QColor ground;
  QColor body;  // of the trailer
  QColor part;  // that is built into it
  QColor tyre;
  QColor tread;
  QColor on_tyre = QColor("#ffffff");
  QColor advised;
  QColor advised_ground;
  QColor lamp;
  QColor stop_light;
  QColor out;  // a lamp that is not lit
};

}  // namespace lorimet::bench

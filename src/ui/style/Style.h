#pragma once

class QApplication;
class QString;
class Palette;

/// Measures that all windows share, in device-independent pixels and milliseconds.
namespace Style {

constexpr int corner = 8;
constexpr int spacing = 8;
constexpr int gap = 12;
constexpr int margin = 16;
constexpr int shutterMs = 240;
constexpr int popUpMs = 180;
constexpr int keyTurnMs = 220;

/// The size of texts, in percent of the usual one. A window that stands keeps its measures: it has
/// to be made anew.
int textPercent();
void setTextPercent(int percent);

/// A measure that grows with the texts.
int scaled(int pixels);

// Those that do; read them where they are needed, a copy would stay as it is.
extern const int &controlHeight;
extern const int &textSize;
extern const int &smallTextSize;
extern const int &titleSize;
extern const int &iconSize;

/// The point size of the application font; 13 px on a usual screen at the usual text size.
int basePointSize();

/// Makes the further weights of the application font available.
void registerFonts();

/// The style sheet of all windows in the colours of a palette and the size of texts.
QString styleSheet(const Palette &palette);

} // namespace Style

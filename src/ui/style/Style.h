#pragma once

class QApplication;
class QString;
class Palette;

/// Measures that all windows share, in device-independent pixels and milliseconds.
namespace Style {

constexpr int controlHeight = 34;
constexpr int corner = 8;
constexpr int spacing = 8;
constexpr int gap = 12;
constexpr int margin = 16;
constexpr int textSize = 13;
constexpr int smallTextSize = 12;
constexpr int titleSize = 20;
constexpr int iconSize = 18;
constexpr int shutterMs = 240;
constexpr int popUpMs = 180;
constexpr int keyTurnMs = 220;

/// The point size of the application font; 13 px on a usual screen.
int basePointSize();

/// Makes the further weights of the application font available.
void registerFonts();

/// The style sheet of all windows in the colours of a palette.
QString styleSheet(const Palette &palette);

} // namespace Style

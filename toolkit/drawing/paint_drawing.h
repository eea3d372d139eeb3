// Shows a drawing on any surface of the toolkit: a window, a picture, a sheet of paper.
#pragma once

#include "toolkit/drawing/shapes.h"

class QFont;
class QPainter;

namespace trabeon {

/// In the painter's font and its measures, which the caller scales if need be.
void PaintDrawing(QPainter& painter, const Drawing& drawing);

/// The room that texts take in this font, in pixels of 1/96 inch.
TextMeasure MeasureOf(const QFont& font);

}  // namespace trabeon

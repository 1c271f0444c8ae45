// SPDX-License-Identifier: GPL-3.0-or-later
// The pictures of the image catalogue, drawn by our own code at any size and
// pixel ratio: 52 faces, four back designs in three forms each, the empty
// place, the plain 76 by 100 picture, the Sumfall splash and the pointer.
// Each picture is drawn on first use and kept per size.
#pragma once

#include <QPainter>
#include <QPixmap>

namespace ch {

// The picture of catalogue entry `index` (1 to 68) at `width` by `height`
// logical pixels, for a screen of pixel ratio `ratio`. A null pixmap for an
// index outside the catalogue.
QPixmap CardPixmap(int index, int width, int height, qreal ratio);

// The same at the entry's own size in the catalogue.
QPixmap CardPixmap(int index, qreal ratio);

// The program's icon: a card back fanned behind the ace of spades.
QPixmap AppIconPixmap(int size, qreal ratio = 1.0);

// Paints entry `index` into the rectangle (0, 0, w, h) of `painter`'s device.
void PaintCard(QPainter& painter, int index, qreal w, qreal h);

}  // namespace ch

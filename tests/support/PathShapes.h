#pragma once

#include "Transcript.h"

class QPainterPath;

/// What `path` is, with its geometry: a rectangle whose corners are round or square, an ellipse, or
/// else a path with its points.
Shape shapeOfPath(const QPainterPath& path);

/// "x,y" with at most two decimals.
QByteArray toText(const QPointF& point);
QByteArray toText(const QRectF& rect); ///< "x,y wxh"
QByteArray toText(qreal number);

#pragma once

// Not part of the API. It may change from version to version without notice.

#include <QtCore/qglobal.h>

QT_BEGIN_NAMESPACE
class QPainter;
class QStyleOptionMenuItem;
QT_END_NAMESPACE

class CustomMenu;

namespace MenuItemPainter {

/// Paints one item with the attributes of \p menu. The painter keeps its state.
void drawItem(QPainter *painter, const QStyleOptionMenuItem &option, const CustomMenu &menu);

} // namespace MenuItemPainter

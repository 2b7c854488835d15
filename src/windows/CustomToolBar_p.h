#pragma once

// Not part of the API. It may change from version to version without notice.

#include <QtCore/QPointer>
#include <QtWidgets/QBoxLayout>

class CustomToolBar;

class CustomToolBarPrivate
{
public:
    explicit CustomToolBarPrivate(CustomToolBar *owner) : q(owner) { initRow(); }

    void initRow();
    void add(QWidget *widget);

    CustomToolBar *q;
    QPointer<QHBoxLayout> row;
};

#include <Zanthic/CustomToolBar.h>

#include "windows/CustomToolBar_p.h"

#include <Zanthic/CustomComboBox.h>
#include <Zanthic/CustomLabel.h>
#include <Zanthic/CustomLineWidget.h>
#include <Zanthic/CustomPushButton.h>

namespace {

constexpr QSize kSeparatorSize(1, 18);

} // namespace

void CustomToolBarPrivate::initRow()
{
    row = static_cast<QHBoxLayout *>(Custom::createLayout(Qt::Horizontal));
    q->setLayout(row);
}

void CustomToolBarPrivate::add(QWidget *widget)
{
    row->addWidget(widget);
}

CustomToolBar::CustomToolBar(QWidget *parent) : CustomWidget(parent), d(std::make_unique<CustomToolBarPrivate>(this))
{
    cSetClassName(QString::fromLatin1(metaObject()->className()));
}

CustomToolBar::~CustomToolBar() = default;

CustomComboBox *CustomToolBar::cAddCommBox(CustomComboBox *comboBox)
{
    if (!d->row)
        return comboBox;
    if (!comboBox)
        comboBox = new CustomComboBox(this, CustomComboBox::DarkBlack, false);
    d->add(comboBox);
    return comboBox;
}

CustomLabel *CustomToolBar::cAddLabel(CustomLabel *label)
{
    if (!d->row)
        return label;
    if (!label)
        label = new CustomLabel(this);
    d->add(label);
    return label;
}

CustomPushButton *CustomToolBar::cAddButton(CustomPushButton *button)
{
    if (!d->row)
        return button;
    if (!button)
        button = new CustomPushButton(this, CustomPushButton::Default);
    d->add(button);
    return button;
}

CustomLineWidget *CustomToolBar::cAddSeperator()
{
    if (!d->row)
        return nullptr;
    auto *line = new CustomLineWidget(this);
    line->cSetLineType(CustomLineWidget::VerticalLine);
    line->cSetBackgroundColor(QStringLiteral("DB_COLOR_Custom_ToolBar_Background"), Custom::Normal);
    line->cSetIsDottedLine(true);
    line->setFixedSize(kSeparatorSize);
    d->add(line);
    return line;
}

void CustomToolBar::cAddSpacing(int size)
{
    if (d->row)
        d->row->addSpacing(size);
}

void CustomToolBar::cAddEnd()
{
    if (d->row)
        d->row->addStretch(0);
}

void CustomToolBar::cClear()
{
    if (!d->row)
        return;
    // Intended: the items move up as the index grows, so that every second one stays until the row goes.
    for (int i = 0; i < d->row->count(); ++i) {
        QLayoutItem *item = d->row->itemAt(i);
        d->row->removeItem(item);
        delete item;
    }
    delete d->row;
    d->initRow();
}

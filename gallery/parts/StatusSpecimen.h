#pragma once

#include <Zanthic/CustomCheckBox.h>
#include <Zanthic/CustomComboBox.h>
#include <Zanthic/CustomPushButton.h>
#include <Zanthic/CustomRadioButton.h>

#include <QtGui/QPainter>
#include <QtWidgets/QStyleOptionButton>

#include <utility>

/// The style state that makes a control paint itself in \p status; what else the state says stays.
inline QStyle::State stateForStatus(QStyle::State state, Custom::ItemStatus status)
{
    state &= ~(QStyle::State_Sunken | QStyle::State_MouseOver | QStyle::State_HasFocus);
    state.setFlag(QStyle::State_Enabled, status != Custom::Disabled);
    state.setFlag(QStyle::State_MouseOver, status == Custom::Hover);
    state.setFlag(QStyle::State_Sunken, status == Custom::Pressed);
    return state;
}

/// A control that paints itself in one status for good and takes no input, for pictures of all statuses side by side.
template <class Control, Custom::CustomWidgetType Type, class Option = QStyleOptionButton>
class StatusSpecimen : public Control
{
public:
    template <class... Arguments>
    explicit StatusSpecimen(Custom::ItemStatus status, Arguments &&...arguments)
        : Control(std::forward<Arguments>(arguments)...), m_status(status)
    {
        this->setAttribute(Qt::WA_TransparentForMouseEvents);
        this->setFocusPolicy(Qt::NoFocus);
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        Option option;
        this->initStyleOption(&option);
        option.state = stateForStatus(option.state, m_status);
        QPainter painter(this);
        this->cDrawWidget(Type, &painter, this->rect(), &option);
    }

private:
    Custom::ItemStatus m_status;
};

using PushButtonSpecimen = StatusSpecimen<CustomPushButton, Custom::WidgetPushButton>;
using CheckBoxSpecimen = StatusSpecimen<CustomCheckBox, Custom::WidgetCheckBox>;
using RadioButtonSpecimen = StatusSpecimen<CustomRadioButton, Custom::WidgetRadioButton>;
using ComboBoxSpecimen = StatusSpecimen<CustomComboBox, Custom::WidgetComboBox, QStyleOptionComboBox>;

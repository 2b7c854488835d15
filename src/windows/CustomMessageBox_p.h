#pragma once

// Not part of the API. It may change from version to version without notice.

#include <Zanthic/CustomLabel.h>
#include <Zanthic/CustomMessageBox.h>
#include <Zanthic/CustomWidget.h>

#include <QtCore/QPointer>
#include <QtWidgets/QScrollArea>

#include <functional>

QT_BEGIN_NAMESPACE
class QHBoxLayout;
QT_END_NAMESPACE

/// A text in lines of one height, broken at any character.
class ZANTHIC_TEST_EXPORT CMessageBoxLabel : public CustomLabel
{
    Q_OBJECT

public:
    explicit CMessageBoxLabel(int lineHeight, QWidget *parent = nullptr);

    using Measure = std::function<int(const QString &)>; ///< the width of a text, px
    /// \p text with "\r\n" wherever a line would be wider than \p width. A line has one character at least, and takes
    /// as many as fit.
    static QString wrapped(const QString &text, int width, const Measure &measure);

    void wordWrapString(int width);
    void fit(); ///< takes the size of its lines
    void setTextColor(const QString &name); ///< a skin colour
    void setLinkText(const QString &text); ///< \p text with its links in the text's colour

    bool m_bWrapped = false;
    int m_nLineHeight;
    QColor m_oTextColor;

protected:
    void paintEvent(QPaintEvent *event) override;
    void customEvent(QEvent *event) override;

private:
    int measure(const QString &text) const;
    void applyTextColor();

    QString m_strTextColor;
    QString m_strLinkText;
};

/// A text that scrolls when it is higher than its place.
class ZANTHIC_TEST_EXPORT CMessageBoxScrollText : public QScrollArea
{
    Q_OBJECT

public:
    CMessageBoxScrollText(int lineHeight, QWidget *parent);

    CMessageBoxLabel *label() const { return m_pLabel; }
    /// Fixes the size and wraps the text for it. Beside a scroll bar the lines are shorter, so that it hides none of
    /// the text.
    void place(const QSize &size);

protected:
    void customEvent(QEvent *event) override;

private:
    void wrapFor(int width);

    CMessageBoxLabel *m_pLabel;
};

/// The panel with icon and texts.
class ZANTHIC_TEST_EXPORT CustomMessageBoxPrivate : public CustomWidget
{
    Q_OBJECT

public:
    explicit CustomMessageBoxPrivate(CustomMessageBox *box);

    static CustomMessageBoxPrivate *get(const CustomMessageBox *box);
    static void setNotBlockRun_Mac(); ///< does nothing
    static QString iconPath(CustomMessageBox::HintIconStyle style);

    void initUI();
    /// Puts a panel that stands in no layout where the first one stood.
    static void placePanel(CustomMessageBox *box);

    bool m_bLargeSize = false;
    bool m_bBuilt = false; ///< initUI() has filled the panel
    bool m_bOpenExternalLinks = false;
    QString m_strTextTitle;
    QString m_strContent;
    CustomMessageBox::HintIconStyle m_eHintStyle = CustomMessageBox::HintNone;
    bool m_bYesNo = false; ///< the buttons are Yes and No

    static bool g_bIsRunExec; ///< the static calls block

private:
    CMessageBoxScrollText *newText(int lineHeight, const QString &text, const QFont &font, const QString &color);
    QHBoxLayout *layOutTitle(const QFont &font, int height);
    QHBoxLayout *layOutContent(const QFont &font);
    /// Adds the icon, if there is one, and gives the width that is left for the title.
    int addIcon(QHBoxLayout *row, int titleWidth, int width);
    static void fitToLink(CMessageBoxLabel *label, int widthBefore);
};

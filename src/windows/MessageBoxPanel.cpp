// The panel of a message box: its texts and their sizes.

#include "windows/CustomMessageBox_p.h"

#include "style/StyleImages_p.h"
#include "windows/CustomMainWindow_p.h"

#include <Zanthic/ChangeSkinEvent.h>
#include <Zanthic/CustomPushButton.h>

#include <QtGui/QPaintEvent>
#include <QtGui/QPainter>
#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QStyle>

namespace {

constexpr QSize Panel_Size(255, 88);
constexpr QSize Panel_LargeSize(308, 120);
constexpr int Panel_LeftMargin = 20; // beside it in the box
constexpr int Title_Height = 44;
constexpr int Title_LargeHeight = 100;
constexpr int Title_LineHeight = 22;
constexpr int Title_FontSize = 16;
constexpr int Title_TopSpacing = 20; // when it stands alone
constexpr int Content_Height = 36;
constexpr int Content_LineHeight = 18;
constexpr int Content_FontSize = 12;
constexpr int Icon_TextGap = 5;
constexpr int Icon_Spacing = 6;
constexpr int Text_Slack = 8; // a line counts as that much wider than it is
constexpr int Text_MinLines = 2;
constexpr int Link_Width = 250;
constexpr int Link_ExtraHeight = 40;
constexpr int Link_TagLength = 3; // "<a " before "href"

QString lineBreak()
{
    return QStringLiteral("\r\n");
}

QString withoutEndBlanks(const QString &line)
{
    int length = line.size();
    while (length > 0 && line.at(length - 1).isSpace())
        --length;
    return line.left(length);
}

QStringList linesOf(const QString &text)
{
    return text.split(lineBreak(), Qt::SkipEmptyParts);
}

/// How many characters from \p position on fit, starting the search at \p guess.
int fittingLength(const QString &text, int position, int guess, int width, const CMessageBoxLabel::Measure &measure)
{
    const int left = text.size() - position;
    int length = qMin(guess, left);
    const auto isOver = [&](int candidate) { return width < measure(text.mid(position, candidate)); };
    if (isOver(length)) {
        while (length > 0 && isOver(length))
            --length;
    } else {
        while (length < left && !isOver(length + 1))
            ++length;
    }
    return length;
}

/// A character outside the first plane is a pair that can't be parted, and a line goes on in any case.
int wholeCharacters(const QString &text, int position, int length)
{
    const auto splitsPair = [&](int candidate) {
        const int last = position + candidate - 1;
        return last >= position && last + 1 < text.size() && text.at(last).isHighSurrogate()
            && text.at(last + 1).isLowSurrogate();
    };
    if (splitsPair(length))
        --length;
    if (length > 0)
        return length;
    return splitsPair(1) ? 2 : 1;
}

QString wrappedLine(const QString &text, int width, const CMessageBoxLabel::Measure &measure)
{
    const int whole = measure(text);
    if (whole <= width)
        return text;
    const int chunk = int(qMax(qint64(0), qint64(text.size()) * width / whole));
    QString result;
    for (int position = 0; position < text.size();) {
        const int fitting = fittingLength(text, position, chunk, width, measure);
        const int length = wholeCharacters(text, position, fitting);
        result += text.mid(position, length) + lineBreak();
        position += length;
    }
    return result;
}

} // namespace

CMessageBoxLabel::CMessageBoxLabel(int lineHeight, QWidget *parent) : CustomLabel(parent), m_nLineHeight(lineHeight) { }

QString CMessageBoxLabel::wrapped(const QString &text, int width, const Measure &measure)
{
    if (text.contains(lineBreak()))
        return text;
    // A plain line feed ends a line, too.
    const QStringList parts = text.split(QLatin1Char('\n'));
    if (parts.size() == 1)
        return wrappedLine(text, width, measure);
    QString result;
    for (const QString &part : parts) {
        QString line = wrappedLine(part, width, measure);
        if (!line.endsWith(lineBreak()))
            line += lineBreak();
        result += line;
    }
    return result;
}

int CMessageBoxLabel::measure(const QString &text) const
{
    return QFontMetrics(font()).boundingRect(text).width() + Text_Slack;
}

void CMessageBoxLabel::wordWrapString(int width)
{
    const QString result = wrapped(text(), width, [this](const QString &line) { return measure(line); });
    if (result == text())
        return;
    m_bWrapped = true;
    setText(result);
    fit();
}

void CMessageBoxLabel::fit()
{
    const QStringList lines = linesOf(text());
    int width = -1;
    for (const QString &line : lines)
        width = qMax(width, measure(line));
    setFixedSize(qMax(0, width), m_nLineHeight * qMax(lines.size(), Text_MinLines) - 1);
}

void CMessageBoxLabel::setTextColor(const QString &name)
{
    m_strTextColor = name;
    cSetFontColor(QStringLiteral("DB_COLOR_") + name, Custom::Normal, {});
    applyTextColor();
}

void CMessageBoxLabel::applyTextColor()
{
    m_oTextColor = Custom::getDataBaseColor(m_strTextColor).color();
    if (!m_strLinkText.isEmpty())
        setLinkText(m_strLinkText);
}

void CMessageBoxLabel::setLinkText(const QString &text)
{
    m_strLinkText = text;
    // Links take the application's colour as they are read, whatever the label's palette says.
    setText(QStringLiteral("<style>a { color: %1 }</style>").arg(m_oTextColor.name()) + text);
}

void CMessageBoxLabel::customEvent(QEvent *event)
{
    CustomLabel::customEvent(event);
    if (int(event->type()) == ChangeSkinEvent::EventType)
        applyTextColor();
}

void CMessageBoxLabel::paintEvent(QPaintEvent *event)
{
    if (openExternalLinks()) {
        CustomLabel::paintEvent(event);
        return;
    }
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setFont(font());
    painter.fillRect(rect(), Custom::getDataBaseColor(QStringLiteral("Custom_Message_Background")));
    QPalette colors = palette();
    colors.setColor(QPalette::WindowText, m_oTextColor);
    const int flags = int(alignment());
    const QStringList lines = linesOf(text());
    if (lines.size() <= 1) {
        style()->drawItemText(&painter, rect(), flags, colors, isEnabled(), text(), QPalette::WindowText);
        return;
    }
    QRect strip(0, 0, width(), m_nLineHeight);
    for (const QString &line : lines) {
        // A blank at the end would shift the line, whose ink alone is measured, out of its place.
        if (strip.intersects(event->rect()))
            style()->drawItemText(
                &painter, strip, flags, colors, isEnabled(), withoutEndBlanks(line), QPalette::WindowText);
        strip.translate(0, m_nLineHeight);
    }
}

CMessageBoxScrollText::CMessageBoxScrollText(int lineHeight, QWidget *parent)
    : QScrollArea(parent), m_pLabel(new CMessageBoxLabel(lineHeight))
{
    setObjectName(QStringLiteral("MessageBoxScrollText"));
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    setStyleSheet(Custom::styleSheet(Custom::SheetScrollBar));
    setWidget(m_pLabel);
    // The panel's background shows where the text paints none.
    viewport()->setAutoFillBackground(false);
    m_pLabel->setAutoFillBackground(false);
    verticalScrollBar()->installEventFilter(this);
}

void CMessageBoxScrollText::place(const QSize &size)
{
    setFixedSize(size);
    const QString text = m_pLabel->text();
    wrapFor(size.width());
    if (m_pLabel->height() <= size.height())
        return;
    m_pLabel->setText(text);
    m_pLabel->fit();
    wrapFor(size.width() - verticalScrollBar()->sizeHint().width());
}

void CMessageBoxScrollText::wrapFor(int width)
{
    m_pLabel->wordWrapString(width);
    m_pLabel->setFixedWidth(qMax(m_pLabel->width(), width));
}

void CMessageBoxScrollText::customEvent(QEvent *event)
{
    if (int(event->type()) == ChangeSkinEvent::EventType)
        setStyleSheet(Custom::styleSheet(Custom::SheetScrollBar));
}

CustomMessageBoxPrivate::CustomMessageBoxPrivate(CustomMessageBox *box) : CustomWidget(box)
{
    setFixedSize(Panel_Size);
    setAutoFillBackground(true);
    cSetBackgroundColor(QStringLiteral("DB_COLOR_Custom_Message_Background"), Custom::Normal, {});
}

CustomMessageBoxPrivate *CustomMessageBoxPrivate::get(const CustomMessageBox *box)
{
    return box->d;
}

void CustomMessageBoxPrivate::setNotBlockRun_Mac() { }

QString CustomMessageBoxPrivate::iconPath(CustomMessageBox::HintIconStyle style)
{
    switch (style) {
    case CustomMessageBox::HintInformation:
        return QStringLiteral(":/Zanthic/Hint/information.png");
    case CustomMessageBox::HintWarning:
        return QStringLiteral(":/Zanthic/Hint/warning.png");
    case CustomMessageBox::HintError:
        return QStringLiteral(":/Zanthic/Hint/error.png");
    case CustomMessageBox::HintAsk:
        return QStringLiteral(":/Zanthic/Hint/Ask.png");
    case CustomMessageBox::HintSuccess:
        return QStringLiteral(":/Zanthic/Hint/success.png");
    case CustomMessageBox::HintNone:
        break;
    }
    return QString();
}

void CustomMessageBoxPrivate::initUI()
{
    if (m_strTextTitle.isEmpty()) {
        if (m_strContent.isEmpty())
            return;
        m_strTextTitle.swap(m_strContent);
    }
    m_bBuilt = true;
    m_strTextTitle.remove(lineBreak());
    m_strContent.remove(lineBreak());
    QFont font(Custom::globalFontFamily());
    font.setPixelSize(Title_FontSize);
    font.setWeight(QFont::Bold);
    if (m_bLargeSize)
        setFixedSize(Panel_LargeSize);

    const int titleHeight = m_bLargeSize ? Title_LargeHeight : Title_Height;
    auto *column = static_cast<QVBoxLayout *>(Custom::createLayout(Qt::Vertical));
    column->addSpacing(m_strContent.isEmpty() ? Title_TopSpacing : 0);
    column->addLayout(layOutTitle(font, titleHeight));
    if (!m_strContent.isEmpty()) {
        column->addSpacing(titleHeight - Content_Height);
        font.setWeight(QFont::Normal);
        font.setPixelSize(Content_FontSize);
        column->addLayout(layOutContent(font));
    }
    column->addStretch(0);
    setLayout(column);
}

CMessageBoxScrollText *CustomMessageBoxPrivate::newText(
    int lineHeight, const QString &text, const QFont &font, const QString &color)
{
    auto *area = new CMessageBoxScrollText(lineHeight, parentWidget());
    CMessageBoxLabel *label = area->label();
    label->setTextFormat(m_bOpenExternalLinks ? Qt::AutoText : Qt::PlainText);
    label->setOpenExternalLinks(m_bOpenExternalLinks);
    label->setText(text);
    label->cSetFont(font, Custom::Normal, {});
    label->fit();
    label->setTextColor(color);
    return area;
}

int CustomMessageBoxPrivate::addIcon(QHBoxLayout *row, int titleWidth, int width)
{
    const QString path = iconPath(m_eHintStyle);
    const QPixmap picture = path.isEmpty() ? QPixmap() : StyleImages::pixmap(path);
    if (picture.isNull())
        return width;
    const int pictureWidth = qRound(picture.width() / picture.devicePixelRatio());
    const int spacing = qMax((width - 1 - titleWidth - Icon_TextGap - pictureWidth) / 2, 0);
    auto *icon = new CustomPushButton(this, CustomPushButton::Default);
    // In both statuses: a new skin puts the document's value for a disabled button back.
    for (const Custom::ItemStatus status : { Custom::Normal, Custom::Disabled })
        icon->cSetBackgroundColor(QStringLiteral("DB_COLOR_Custom_Message_Background"), status, {});
    icon->cSetBorderWidth(0, Custom::AllEdge, Custom::Normal, {});
    icon->cSetBackgroundImage(path, Custom::Normal, {});
    icon->setDisabled(true);
    row->addSpacing(spacing);
    row->addWidget(icon);
    row->addSpacing(Icon_Spacing);
    return width - spacing - Icon_Spacing - pictureWidth;
}

QHBoxLayout *CustomMessageBoxPrivate::layOutTitle(const QFont &font, int height)
{
    CMessageBoxScrollText *area
        = newText(Title_LineHeight, m_strTextTitle, font, QStringLiteral("Custom_Message_Font"));
    auto *row = static_cast<QHBoxLayout *>(Custom::createLayout(Qt::Horizontal));
    const int width = addIcon(row, area->label()->sizeHint().width(), this->width());
    const bool hasIcon = row->count() > 0;
    area->label()->setAlignment(hasIcon ? Qt::AlignLeft | Qt::AlignVCenter : Qt::Alignment(Qt::AlignCenter));
    area->place(QSize(qMax(0, width), height));
    row->addWidget(area);
    row->addStretch(0);
    return row;
}

QHBoxLayout *CustomMessageBoxPrivate::layOutContent(const QFont &font)
{
    CMessageBoxScrollText *area
        = newText(Content_LineHeight, m_strContent, font, QStringLiteral("Custom_Font_LittleBlack"));
    area->label()->setAlignment(Qt::AlignCenter);
    const QSize size(width(), Content_Height);
    const int link = m_bOpenExternalLinks ? m_strContent.indexOf(QLatin1String("href")) : -1;
    if (link >= 0) {
        const QString before = m_strContent.mid(0, link - Link_TagLength);
        fitToLink(area->label(), QFontMetrics(this->font()).boundingRect(before).width() + Text_Slack);
        area->label()->setLinkText(m_strContent);
        area->setFixedSize(size);
    } else {
        area->place(size);
    }
    auto *row = static_cast<QHBoxLayout *>(Custom::createLayout(Qt::Horizontal));
    row->addWidget(area);
    return row;
}

void CustomMessageBoxPrivate::fitToLink(CMessageBoxLabel *label, int widthBefore)
{
    label->setWordWrap(true);
    label->adjustSize();
    label->setFixedSize(Link_Width, widthBefore / Link_Width * Content_LineHeight + Link_ExtraHeight);
}

void CustomMessageBoxPrivate::placePanel(CustomMessageBox *box)
{
    CustomMessageBoxPrivate *panel = box->d;
    QWidget *host = CustomMainWindowPrivate::get(box)->m_pCentralWidget;
    if (host && box->isAncestorOf(host) && panel->parentWidget() == box)
        panel->move(host->mapTo(box, QPoint(Panel_LeftMargin, 0)));
}

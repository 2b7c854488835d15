#pragma once

#include "parts/TextLabel.h"

#include <Zanthic/Custom.h>

#include <QtWidgets/QWidget>

#include <functional>
#include <vector>

class Card;
class QBoxLayout;
class QGridLayout;

/// A page of the gallery: cards below each other, one class a family of controls. To add a page, derive from this,
/// build the cards in the constructor, and list the class in PageRegistry.cpp.
///
/// Texts are given in their source form, marked by QT_TR_NOOP, and are translated in the context of the page's class
/// whenever the language changes.
class GalleryPage : public QWidget
{
    Q_OBJECT

public:
    explicit GalleryPage(QWidget *parent = nullptr);
    ~GalleryPage() override;

    /// Writes all texts anew. A page that makes texts itself extends this.
    virtual void retranslate();

protected:
    Card *addCard(const char *heading, const char *description = nullptr);
    /// A label whose text is translated.
    TextLabel *text(const char *source, TextLabel::Role role);
    /// A label whose text stays as it is: a name from the programming interface, a number.
    TextLabel *plainText(const QString &words, TextLabel::Role role);
    /// Keeps the text of \p widget translated and returns the widget.
    template <class Widget>
    Widget *translated(Widget *widget, const char *source)
    {
        addText(source, [widget](const QString &words) { widget->setText(words); });
        return widget;
    }

    /// Keeps the name of \p status as the text of \p widget and returns the widget.
    template <class Widget>
    Widget *withStatusName(Widget *widget, Custom::ItemStatus status)
    {
        addText(
            statusSource(status), [widget](const QString &words) { widget->setText(words); }, CommonContext);
        return widget;
    }
    /// The name of a status in the user's language.
    static QString statusName(Custom::ItemStatus status);
    /// A label with the name of \p status.
    TextLabel *statusLabel(Custom::ItemStatus status);

    /// \p specimen with a caption below.
    QWidget *captioned(QWidget *specimen, TextLabel *caption);
    /// \p specimen with a translated caption below.
    QWidget *captioned(QWidget *specimen, const char *caption);
    /// \p specimen with \p caption below, as it stands.
    QWidget *labelled(QWidget *specimen, const QString &caption);
    /// A row of widgets from the left on, \p gap px apart.
    QBoxLayout *row(const QList<QWidget *> &widgets, int gap = 24);
    /// A table with a heading for each status from the second column on, and one for the live controls where wanted.
    QGridLayout *statusTable(bool liveColumn);

    /// Has \p write called with the translation of \p source. \p context is null for that of the page's class.
    void addText(const char *source, std::function<void(const QString &)> write, const char *context = nullptr);

    void changeEvent(QEvent *event) override;

private:
    static constexpr const char *CommonContext = "GalleryPage"; // of the texts that pages share

    static const char *statusSource(Custom::ItemStatus status);

    struct Text
    {
        const char *context;
        const char *source;
        std::function<void(const QString &)> write;
    };
    std::vector<Text> m_texts;
};

/// The statuses in the order in which specimens show them.
const QVector<Custom::ItemStatus> &allStatuses();

#pragma once

#include <Zanthic/CustomMainWindow.h>

class CustomMessageBoxPrivate;

/// A modal notice or question with an icon, a large text and a smaller one below. Most applications use the static
/// calls:
///
/// \code
/// if (CustomMessageBox::askYesNo(window, tr("The file has been changed."), tr("Save it?")) == 1)
///     save();
/// \endcode
///
/// Texts are shown as they stand, markup included, and are broken at any character; all "\r\n" are taken out. Only
/// with openExternalLinks, texts may hold links, which then open outside the application.
class ZANTHIC_EXPORT CustomMessageBox : public CustomMainWindow
{
    Q_OBJECT

public:
    enum HintIconStyle : int {
        HintNone = 0,
        HintInformation = 1,
        HintWarning = 2,
        HintError = 3,
        HintAsk = 4,
        HintSuccess = 5
    };
    Q_ENUM(HintIconStyle)

    /// An empty box: set the texts, call cEndSetParameter(), choose buttons, show it.
    explicit CustomMessageBox(QWidget *parent = nullptr);
    ~CustomMessageBox() override;

    /// \name Setters
    /// They take effect with cEndSetParameter().
    /// \{
    void cSetContent(const QString &content); ///< the small text; the large one when that is empty
    void cSetTextTitle(const QString &title); ///< the large text
    void cSetHintStyle(HintIconStyle style); ///< an unknown style has no icon
    void cSetOpenExternalLinks(bool open);
    /// Builds the texts, and the window title from them. A second call builds them anew; it keeps the texts and the
    /// icon but neither the links nor the large size.
    void cEndSetParameter();
    /// \}

    /// \name Notices
    /// They block until the box is closed and return 1 for OK, 0 for Cancel or a closed box, -1 when the box is deleted
    /// meanwhile. The unnamed text has no effect. The smaller text is \p content unless \p textTitle is empty.
    /// \{
    static int warning(QWidget *parent, const QString &content, const QString & = QString(), Buttons buttons = ButtonOk,
        const QString &textTitle = QString());
    static int information(QWidget *parent, const QString &content, const QString & = QString(),
        Buttons buttons = ButtonOk, const QString &textTitle = QString(), bool openExternalLinks = false);
    static int error(QWidget *parent, const QString &content, const QString & = QString(), Buttons buttons = ButtonOk,
        const QString &textTitle = QString());
    static int simple(QWidget *parent, const QString &content, const QString &textTitle = QString(),
        const QString & = QString(), HintIconStyle style = HintNone, bool openExternalLinks = false);
    static int ask(QWidget *parent, const QString &content, const QString & = QString(),
        Buttons buttons = Buttons(ButtonOk | ButtonCancel), const QString &textTitle = QString(),
        bool largeSize = false);
    static int askYesNo(
        QWidget *parent, const QString &content, const QString &textTitle = QString(), bool largeSize = false);
    /// \}

protected:
    void changeEvent(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    friend class CustomMessageBoxPrivate;
    CustomMessageBoxPrivate *d; // a child of the box
};

#pragma once

#include <Zanthic/CustomQssHelper.h>

#include <QtWidgets/QGroupBox>

/// A group box with the theme's style sheet, which a new skin sets again. A number of the program's own tells apart
/// the boxes that one slot is connected to.
class ZANTHIC_EXPORT CustomGroupBox : public QGroupBox, public CustomQssHelper
{
    Q_OBJECT
    Q_PROPERTY(QString LanguageString READ cLanguageString)

public:
    explicit CustomGroupBox(QWidget *parent = nullptr);
    explicit CustomGroupBox(const QString &title, QWidget *parent = nullptr);
    ~CustomGroupBox() override;

    void SetIndex(int index); ///< the number in Toggled(), -1 at start

Q_SIGNALS:
    /// toggled() with the number of the box.
    void Toggled(int iIndex, bool bChecked);

protected:
    void changeEvent(QEvent *event) override;
    void customEvent(QEvent *event) override;

private Q_SLOTS:
    void OnToggled(bool bChecked);

private:
    int m_nIndex = -1;
};

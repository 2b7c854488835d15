#include <Zanthic/Custom.h>

#include "platform/KorvInterface_p.h"
#include "windows/FileNames_p.h"

#include <Zanthic/CustomMessageBox.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QPointer>

namespace {

void warnOfDirectory(QWidget *parent)
{
    CustomMessageBox::warning(parent, QCoreApplication::translate("Custom", "This directory is not supported"),
        QCoreApplication::translate("Custom", "Prompt"), CustomMainWindow::ButtonOk, QString());
}

} // namespace

QString Custom::getExistingDirectory(
    QWidget *parent, const QString &caption, const QString &dir, QFileDialog::Options options)
{
    const QPointer<QWidget> owner(parent);
    bool supported = true;
    QString name = KorvInterface::getExistingDirectory(parent, caption, dir, &supported, options);
    if (!supported)
        warnOfDirectory(owner);
    return name;
}

QString Custom::getSaveFileName(QWidget *parent, const QString &caption, const QString &dir, const QString &filter,
    const QString &initialName, const QString &suffix, const QStringList &suffixes, QString *selectedFilter,
    QFileDialog::Options options)
{
    const QPointer<QWidget> owner(parent);
    bool supported = true;
    const QString name = KorvInterface::getSaveFileName(
        parent, caption, dir, filter, initialName, &supported, selectedFilter, options);
    if (!supported)
        warnOfDirectory(owner);
    return FileNames::completed(name, suffix, suffixes);
}

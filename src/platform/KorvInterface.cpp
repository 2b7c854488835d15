#include "platform/KorvInterface_p.h"

#include <QtCore/QFileInfo>
#include <QtCore/QPointer>

namespace {

struct Request
{
    QFileDialog::FileMode mode = QFileDialog::AnyFile;
    QFileDialog::AcceptMode acceptMode = QFileDialog::AcceptOpen;
    QString start; // a directory, or a file in one
    QString name; // to be selected; that of start where it is empty
    QString filter;
    QString *selectedFilter = nullptr;
    QFileDialog::Options options;
};

void prepare(QFileDialog *dialog, const Request &request)
{
    // First of all, since they decide on whose dialog it is.
    dialog->setOptions(request.options);
    dialog->setFileMode(request.mode);
    // Taken away by the mode.
    dialog->setOption(QFileDialog::ShowDirsOnly, request.options.testFlag(QFileDialog::ShowDirsOnly));
    dialog->setAcceptMode(request.acceptMode);
    if (!request.filter.isEmpty())
        dialog->setNameFilter(request.filter);
    if (request.selectedFilter && !request.selectedFilter->isEmpty())
        dialog->selectNameFilter(*request.selectedFilter);

    const QFileInfo start(request.start);
    QString name = QFileInfo(request.name).fileName();
    if (!request.start.isEmpty()) {
        dialog->setDirectory(start.isDir() ? start.filePath() : start.path());
        if (name.isEmpty() && !start.isDir())
            name = start.fileName();
    }
    if (!name.isEmpty())
        dialog->selectFile(name);
}

QString ask(QWidget *parent, const QString &caption, const Request &request)
{
    // On the heap: a parent that is deleted meanwhile takes its dialog along.
    const QPointer<QFileDialog> dialog(new QFileDialog(parent, caption));
    prepare(dialog, request);
    const int result = dialog->exec();
    QString chosen;
    if (dialog && result == QDialog::Accepted) {
        chosen = dialog->selectedFiles().value(0);
        if (request.selectedFilter)
            *request.selectedFilter = dialog->selectedNameFilter();
    }
    delete dialog.data();
    return chosen;
}

void refuseUnwritable(const QString &directory, bool *supported)
{
    if (supported && !QFileInfo(directory).isWritable())
        *supported = false;
}

} // namespace

QString KorvInterface::getExistingDirectory(
    QWidget *parent, const QString &caption, const QString &dir, bool *supported, QFileDialog::Options options)
{
    Request request;
    request.mode = QFileDialog::Directory;
    request.start = dir;
    request.options = options;
    QString chosen = ask(parent, caption, request);
    if (!chosen.isEmpty())
        refuseUnwritable(chosen, supported);
    return chosen;
}

QString KorvInterface::getSaveFileName(QWidget *parent, const QString &caption, const QString &dir,
    const QString &filter, const QString &initialName, bool *supported, QString *selectedFilter,
    QFileDialog::Options options)
{
    Request request;
    request.acceptMode = QFileDialog::AcceptSave;
    request.start = dir;
    request.name = initialName;
    request.filter = filter;
    request.selectedFilter = selectedFilter;
    request.options = options;
    QString chosen = ask(parent, caption, request);
    if (!chosen.isEmpty())
        refuseUnwritable(QFileInfo(chosen).path(), supported);
    return chosen;
}

QString KorvInterface::getOpenFileName(QWidget *parent, const QString &caption, const QString &path,
    const QString &filter, QString *selectedFilter, QFileDialog::Options options)
{
    Request request;
    request.mode = QFileDialog::ExistingFile;
    request.start = path;
    request.filter = filter;
    request.selectedFilter = selectedFilter;
    request.options = options;
    return ask(parent, caption, request);
}

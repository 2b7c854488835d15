#pragma once

#include <QtCore/QTimer>
#include <QtWidgets/QApplication>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QLabel>

#include <functional>

/// Replies once to a file dialog. Closes what opens else, and a file dialog that stays open for two seconds.
struct DialogDriver : QTimer
{
    explicit DialogDriver(const std::function<void(QFileDialog *)> &reply)
    {
        callOnTimeout(this, [this, reply] {
            QWidget *modal = QApplication::activeModalWidget();
            auto *dialog = qobject_cast<QFileDialog *>(modal);
            if (dialog && ++looks == 1)
                return reply(dialog);
            for (const QLabel *label : modal ? modal->findChildren<QLabel *>() : QList<QLabel *>())
                texts += label->text().remove(QStringLiteral("\r\n")) + QLatin1Char('|');
            if (modal && (!dialog || looks > 100))
                modal->close();
        });
        start(20);
    }
    static void end(QDialog *dialog, bool accepted) { accepted ? dialog->accept() : dialog->reject(); }

    int looks = 0;
    QString texts; ///< of the dialogs after the reply
};

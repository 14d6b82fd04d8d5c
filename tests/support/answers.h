// The questions and messages of a window, answered as they come up.
#pragma once

#include <QApplication>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QList>
#include <QMessageBox>
#include <QPushButton>
#include <QStringList>
#include <QTest>
#include <QTimer>

/// A question or a message as it stood on the screen.
struct Dialog
{
    QString text;
    QString defaultButton; // without the mark of its key
    QString defaultRole;   // "cancel", or nothing
};

/// Answers the dialogs, which wait for it: one answer each, in their order.
class Answers : public QObject
{
public:
    /// A key, or the text of a button.
    static constexpr auto enter = "<Enter>";
    static constexpr auto escape = "<Escape>";

    Answers()
    {
        connect(&timer, &QTimer::timeout, this, [this] { look(); });
        timer.start(5);
    }

    /// Of file dialogs the answer is a path, or escape.
    void give(const QStringList &answers) { prepared += answers; }

    /// Fails the test when a dialog was not expected, or an expected one did not come.
    void verifyUsedUp() const
    {
        QCOMPARE(unexpected, QStringList());
        QCOMPARE(prepared, QStringList());
    }

    void clear()
    {
        prepared.clear();
        seen.clear();
        unexpected.clear();
    }

    QStringList prepared;
    QList<Dialog> seen;
    QStringList unexpected; // dialogs without an answer, which were given up

private:
    void look()
    {
        QWidget *dialog = QApplication::activeModalWidget();
        if (!dialog || !dialog->isVisible())
            return;
        auto *box = qobject_cast<QMessageBox *>(dialog);
        auto *files = qobject_cast<QFileDialog *>(dialog);
        const bool known = !prepared.isEmpty();
        const QString answer = known ? prepared.takeFirst() : escape;
        if (!known)
            unexpected.append(box ? box->text() : dialog->windowTitle());
        if (box) {
            const auto *standard = qobject_cast<QPushButton *>(box->focusWidget());
            const QString label = standard ? standard->text().remove('&') : QString();
            const bool cancels =
                standard && box->button(QMessageBox::Cancel) == static_cast<const void *>(standard);
            seen.append({box->text(), label, cancels ? "cancel" : ""});
            checkMarkup(*box);
        } else {
            seen.append({dialog->windowTitle(), {}, {}});
        }
        if (answer == enter)
            QTest::keyClick(dialog, Qt::Key_Return);
        else if (answer == escape)
            QTest::keyClick(dialog, Qt::Key_Escape);
        else if (box)
            press(*box, answer);
        else if (files)
            choose(*files, answer);
    }

    void press(QMessageBox &box, const QString &label)
    {
        for (QAbstractButton *button : box.buttons()) {
            if (button->text().remove('&') == label) {
                button->setFocus();
                QTest::keyClick(button, Qt::Key_Space);
                return;
            }
        }
        unexpected.append("no button \"" + label + "\": " + box.text());
        box.reject();
    }

    static void choose(QFileDialog &dialog, const QString &path)
    {
        auto *name = dialog.findChild<QLineEdit *>("fileNameEdit");
        name->setText(path);
        QTest::keyClick(name, Qt::Key_Return);
    }

    /// What stands in the settings must not be taken for markup.
    void checkMarkup(const QMessageBox &box)
    {
        for (const QLabel *label : box.findChildren<QLabel *>()) {
            const bool rich =
                label->textFormat() == Qt::RichText
                || (label->textFormat() == Qt::AutoText && Qt::mightBeRichText(label->text()));
            if (rich && label->text().contains("<b>bold"))
                unexpected.append("taken for markup: " + label->text());
        }
    }

    QTimer timer;
};

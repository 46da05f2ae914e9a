#pragma once

#include "SheetHost.h"

#include <QtGui/qtextdocument.h>
#include <QtQuick/qquicktextdocument.h>

namespace TQFoundation::Testing {

/// A SheetHost with a fake sendmail program, in whose folder the program and the test exchange files.
class MailHost : public SheetHost
{
protected:
    /// Installs a sendmail program that runs \a script in the shell.
    void makeProgram(const QByteArray &script)
    {
        QFile file(programs.filePath(QStringLiteral("sendmail")));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("#!/bin/sh\n" + script + '\n');
        file.close();
        file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }

    /// Installs a sendmail program that writes its input to the file "mail" and its arguments to "arguments".
    void makeKeepingProgram()
    {
        makeProgram("echo \"$@\" > '" + path("arguments") + "'; cat > '" + path("mail") + "'");
    }

    QByteArray path(const char *name) const { return programs.filePath(QLatin1String(name)).toLocal8Bit(); }

    /// The content of the file \a name; empty if it is missing.
    QByteArray kept(const char *name) const
    {
        QFile file(programs.filePath(QLatin1String(name)));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    /// The undecoded value of the header \a name in the kept mail; empty if it is missing.
    QByteArray sentHeader(const QByteArray &name) const
    {
        for (const QByteArray &line : kept("mail").split('\n')) {
            if (line.startsWith(QByteArray(name + ": ")))
                return line.mid(name.size() + 2);
        }
        return {};
    }

    /// The decoded body of the kept mail.
    QString sentHtml() const
    {
        const QByteArray mail = kept("mail");
        return QString::fromUtf8(QByteArray::fromBase64(mail.mid(mail.indexOf("\n\n") + 2)));
    }

    /// Shows the composer for a feedback mail.
    void compose(const QString &html = {})
    {
        TQMore::sendFeedbackEmail(Color::systemRed(), html);
        slide();
    }

    QQuickItem *subject() const { return itemOf("QQuickTextField"); }
    QQuickItem *message() const { return itemOf("QQuickTextArea"); }

    /// The document of the editor.
    QTextDocument *document() const
    {
        return message()->property("textDocument").value<QQuickTextDocument *>()->textDocument();
    }

    void type(QQuickItem *field, const char *text)
    {
        field->forceActiveFocus();
        for (const char *letter = text; *letter; ++letter)
            QTest::keyClick(static_cast<QWindow *>(window.get()), *letter);
        settle();
    }

    void press(Qt::Key key)
    {
        QTest::keyClick(static_cast<QWindow *>(window.get()), key);
        settle();
    }

    /// Clicks Send. False if the sheet has neither closed nor shown an error after 20 s.
    bool sendAndWait()
    {
        click(button("Send"));
        return comes([this] { return !isShown() || isProblemShown(); });
    }

    bool isProblemShown() const { return button("Try Again"); }
};

} // namespace TQFoundation::Testing

// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/browser.h"

#include <QProcess>
#include <QProcessEnvironment>
#include <QStandardPaths>
#include <QString>
#include <QStringList>
#include <QUrl>

namespace ch {

std::string DefaultBrowser(const std::string& url) {
#if defined(Q_OS_UNIX) && !defined(Q_OS_MACOS)
    const QString browsers = QProcessEnvironment::systemEnvironment().value(QStringLiteral("BROWSER"));
    for (const QString& entry : browsers.split(QLatin1Char(':'), Qt::SkipEmptyParts)) {
        const QString program = entry.trimmed().section(QLatin1Char(' '), 0, 0);
        if (!program.isEmpty() && !QStandardPaths::findExecutable(program).isEmpty()) return program.toStdString();
    }
    const QString xdgMime = QStandardPaths::findExecutable(QStringLiteral("xdg-mime"));
    if (xdgMime.isEmpty()) return {};
    QString scheme = QUrl(QString::fromStdString(url)).scheme();
    if (scheme.isEmpty()) scheme = QStringLiteral("https");
    QProcess query;
    query.start(xdgMime, {QStringLiteral("query"), QStringLiteral("default"), QStringLiteral("x-scheme-handler/") + scheme});
    if (!query.waitForFinished(5000) || query.exitStatus() != QProcess::NormalExit) {
        query.kill();
        query.waitForFinished(1000);
        return {};
    }
    return QString::fromLocal8Bit(query.readAllStandardOutput()).trimmed().toStdString();
#else
    (void)url;
    return "system";
#endif
}

}  // namespace ch

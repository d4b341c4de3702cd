#pragma once

#include <QDir>
#include <QHash>
#include <QProcess>
#include <QStringList>

namespace test {

// Runs the official validation (validate.sh) once on many files and keeps,
// per file, "ok" or the fatal rules it reported.
class OfficialRules
{
public:
    // False when the rules could not run at all (no Java, no folder); the
    // caller fails then, never skips.
    bool run(const QStringList &files)
    {
        QProcess process;
        process.setProcessChannelMode(QProcess::MergedChannels);
        process.start(QStringLiteral("bash"),
            QStringList { QStringLiteral(QOR_EINVOICE_RULES "/validate.sh") } + files);
        if (!process.waitForFinished(-1)) {
            m_output = QStringLiteral("validate.sh did not finish");
            return false;
        }
        m_output = QString::fromUtf8(process.readAll());
        QString current;
        for (const QString &line : m_output.split(u'\n')) {
            if (line.startsWith(QStringLiteral("ok "))) {
                current = line.mid(3).section(u' ', 0, 0);
                m_results[current] = QStringLiteral("ok");
            } else if (line.startsWith(QStringLiteral("FAIL "))) {
                current = line.mid(5).trimmed();
                m_results[current] = QString();
            } else if (!current.isEmpty() && m_results[current] != u"ok" && !line.isEmpty()) {
                m_results[current] += line.trimmed() + u'\n';
            }
        }
        return process.exitCode() <= 1 && !m_results.isEmpty();
    }

    // "ok", the fatal rules reported, or the whole output when the file is
    // not named in it.
    QString resultOf(const QString &file) const
    {
        return m_results.value(file, QStringLiteral("no result: ") + m_output);
    }
    const QString &output() const { return m_output; }

private:
    QString m_output;
    QHash<QString, QString> m_results;
};

} // namespace test

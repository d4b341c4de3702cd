#pragma once

#include "invoiceline.h"

#include <QList>
#include <QString>

class clsqorGenLib;

// Invoice lines as a data file of fixed-field records, made and read by the
// library: a line number, the fields at fixed widths, a checksum. The file is
// windows-1252 text with CR LF line ends, as the other installations read it.
class LineFile
{
public:
    struct ReadResult
    {
        QList<InvoiceLine> lines;
        int refused = 0; // records the library refused (it told the user which)
        bool opened = false;
    };

    explicit LineFile(clsqorGenLib &lib);
    bool write(const QString &path, const QList<InvoiceLine> &lines);
    ReadResult read(const QString &path);

private:
    QString record(qint32 lineNumber, const InvoiceLine &line);
    InvoiceLine lineOf(const QStringList &fields);

    clsqorGenLib &m_lib;
};

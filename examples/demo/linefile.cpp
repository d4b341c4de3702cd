#include "linefile.h"

#include <qorgenlib/lib/clsqorgenlib.h>

#include <QFile>
#include <QStringDecoder>
#include <QStringEncoder>

namespace {

// code, description, quantity, unit, price, VAT rate, payment method
const QVariantList widths { 13, 30, 9, 2, 10, 4, 2 };
const QVariantList formats { QString(), QString(), QStringLiteral("0.00"), QStringLiteral("0"),
    QStringLiteral("0.00"), QStringLiteral("0"), QStringLiteral("0") };
const char *const codePage = "windows-1252";

} // namespace

LineFile::LineFile(clsqorGenLib &lib)
    : m_lib(lib)
{ }

QString LineFile::record(qint32 lineNumber, const InvoiceLine &line)
{
    QStringList data { line.code, line.description, m_lib.SetEuro(float(line.quantity)),
        QString::number(line.unit), m_lib.SetEuro(float(line.price)), QString::number(line.vatRate),
        QString::number(line.payment) };
    QVariant fieldWidths = widths;
    QVariant fieldFormats = formats;
    return m_lib.GetExportData(lineNumber, data, fieldWidths, fieldFormats).toString();
}

bool LineFile::write(const QString &path, const QList<InvoiceLine> &lines)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        return false;
    QStringEncoder encode(codePage);
    if (!encode.isValid())
        encode = QStringEncoder(QStringConverter::Latin1);
    for (int i = 0; i < lines.size(); ++i)
        file.write(encode(record(i + 1, lines.at(i)) + QStringLiteral("\r\n")));
    return file.error() == QFile::NoError;
}

LineFile::ReadResult LineFile::read(const QString &path)
{
    ReadResult result;
    QFile file(path);
    result.opened = file.open(QIODevice::ReadOnly);
    QStringDecoder decode(codePage);
    if (!decode.isValid())
        decode = QStringDecoder(QStringConverter::Latin1);
    while (result.opened && !file.atEnd()) {
        QString text = decode(file.readLine());
        while (text.endsWith(QLatin1Char('\n')) || text.endsWith(QLatin1Char('\r')))
            text.chop(1);
        if (text.isEmpty())
            continue;
        QVariant fieldWidths = widths;
        const QVariant fields = m_lib.GetImportData(text, fieldWidths);
        if (fields.typeId() == QMetaType::QStringList || fields.typeId() == QMetaType::QVariantList)
            result.lines.append(lineOf(fields.toStringList()));
        else
            ++result.refused;
    }
    return result;
}

InvoiceLine LineFile::lineOf(const QStringList &fields)
{
    InvoiceLine line;
    line.code = fields.value(0);
    line.description = fields.value(1);
    line.quantity = m_lib.CGetal(fields.value(2)).toDouble();
    line.unit = m_lib.CGetal(fields.value(3)).toInt();
    line.price = m_lib.CGetal(fields.value(4)).toDouble();
    line.vatRate = m_lib.CGetal(fields.value(5)).toInt();
    line.payment = m_lib.CGetal(fields.value(6)).toInt();
    return line;
}

#pragma once

#include <QtGlobal>

namespace qor::catalogue {

// Catalogue ids of what the record writer and reader tell the user.
enum RecordText : qint32 {
    ChecksumWrong = 1223,
    InLine = 1224,
    LineNumberWrong = 1225,
    DelimiterWrong = 1226,
    ExportWidthsNoArray = 1227,
    ExportWidthsCount = 1228,
    ExportFormatsNoArray = 1229,
    ExportFormatsCount = 1230,
    ImportWidthsNoArray = 1239,
};

} // namespace qor::catalogue

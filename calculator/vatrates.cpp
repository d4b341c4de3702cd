#include "calculator/vatrates.h"

#include "calculator/calculatortexts.h"
#include "lib/frame/catalogue.h"
#include "lib/frame/messageboxlogic.h"
#include "lib/frame/modgenlib.h"
#include "runtime/callbyname.h"
#include "runtime/conversion.h"
#include "runtime/format.h"
#include "runtime/runtimeerror.h"

namespace qor {

using namespace catalogue;

namespace {

// ItemData(NewIndex) = value on a control that publishes its item data as a list.
void setItemDataOfNewEntry(QObject *combo, qint32 value, const RegionalSettings &rs)
{
    const qint32 index = getProperty(combo, "NewIndex").toInt();
    QVariantList data = getProperty(combo, "ItemData").toList();
    if (index < 0 || index >= data.size())
        throw RuntimeError::invalidPropertyValue();
    data[index] = value;
    setProperty(combo, "ItemData", data, rs);
}

void addRate(QObject *combo, qint32 rate, const RegionalSettings &rs)
{
    callOperation(combo, "AddItem", { numberText(rate / 100.0, rs) + QStringLiteral(" %") });
    setItemDataOfNewEntry(combo, rate, rs);
}

void selectNewEntry(QObject *combo, const RegionalSettings &rs)
{
    setProperty(combo, "ListIndex", getProperty(combo, "NewIndex"), rs);
}

} // namespace

double vatFactor(double rate)
{
    return rate / 10000.0 + 1.0;
}

QString vatKeyCaption(qint32 rate, const RegionalSettings &rs)
{
    return format(rate / 100.0, QStringLiteral("0.0\\ \\%"), rs);
}

bool vatKeyVisible(qint32 rate)
{
    return rate >= 1;
}

QString vatNoteText(qint32 rate, const RegionalSettings &rs)
{
    return loadCatalogueText(VatNotePlus) + numberText(rate / 100.0, rs)
        + loadCatalogueText(VatNotePercent);
}

void loadComboBTW(QObject *combo, qint32 setValue, qint32 setListIndex, qint32 rate1, qint32 rate2,
    const RegionalSettings &rs)
{
    callOperation(combo, "Clear");
    callOperation(combo, "AddItem", { QStringLiteral("  0 %") });
    setItemDataOfNewEntry(combo, 0, rs);
    setProperty(combo, "ListIndex", 0, rs);
    if (rate1 > 0) {
        addRate(combo, rate1, rs);
        if (setValue == rate1)
            selectNewEntry(combo, rs);
    }
    if (rate2 > 0) {
        addRate(combo, rate2, rs);
        if (setValue == rate1)
            selectNewEntry(combo, rs);
    }
    if (getProperty(combo, "ListIndex").toInt() == -1 || setListIndex >= 1)
        setProperty(combo, "ListIndex", setListIndex, rs);
}

bool controleerBtwClick(bool reset, qint32 offset)
{
    if (reset) {
        modGenLib().calculatorFlag = false;
        return false;
    }
    if (!modGenLib().calculatorFlag)
        return false;
    useLanguage(offset);
    return showMessageBoxE(loadCatalogueText(VatInclusiveQuestion),
               MessageBoxStyle::YesNo | MessageBoxStyle::Question, loadCatalogueText(VatAddTitle))
        == MessageBoxResult::Yes;
}

} // namespace qor

#include "grid/valueitemfactory.h"

namespace qor {

namespace {

class LibraryValueItems : public ValueItemFactory
{
public:
    std::unique_ptr<QObject> create(bool typeADO) const override
    {
        if (typeADO)
            return std::make_unique<AdoValueItem>();
        return std::make_unique<ClassicValueItem>();
    }
};

std::shared_ptr<const ValueItemFactory> &installed()
{
    static std::shared_ptr<const ValueItemFactory> factory;
    return factory;
}

} // namespace

const ValueItemFactory &ValueItemFactory::current()
{
    static const LibraryValueItems library;
    const std::shared_ptr<const ValueItemFactory> &factory = installed();
    return factory ? *factory : library;
}

void ValueItemFactory::install(std::shared_ptr<const ValueItemFactory> factory)
{
    installed() = std::move(factory);
}

} // namespace qor

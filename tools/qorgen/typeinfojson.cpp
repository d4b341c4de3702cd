#include "tools/qorgen/typeinfojson.h"

#include "lib/typelibrary.h"
#include "tools/qorgen/automationclass.h"
#include "tools/qorgen/valuecodec.h"

namespace qor {

namespace {

JsonValue parameter(const ParameterInfo &info)
{
    JsonValue json = JsonValue::object()
                         .insert(QStringLiteral("name"), info.name)
                         .insert(QStringLiteral("type"), info.type)
                         .insert(QStringLiteral("byRef"), info.byRef)
                         .insert(QStringLiteral("optional"), info.optional);
    // An optional argument without a published default has no "default".
    if (info.optional && info.defaultValue.isValid())
        json.insert(QStringLiteral("default"), ValueCodec::encode(info.defaultValue));
    return json;
}

JsonValue method(const MethodInfo &info)
{
    JsonValue json = JsonValue::object().insert(QStringLiteral("name"), info.name);
    if (!info.returnType.isEmpty())
        json.insert(QStringLiteral("returnType"), info.returnType);
    JsonValue params = JsonValue::array();
    for (const ParameterInfo &p : info.parameters)
        params.append(parameter(p));
    return json.insert(QStringLiteral("parameters"), std::move(params));
}

JsonValue typed(const PropertyInfo &info)
{
    return JsonValue::object()
        .insert(QStringLiteral("name"), info.name)
        .insert(QStringLiteral("type"), info.type);
}

JsonValue enumeration(const EnumInfo &info)
{
    JsonValue members = JsonValue::array();
    for (const EnumMemberInfo &member : info.members)
        members.append(JsonValue::object()
                           .insert(QStringLiteral("name"), member.name)
                           .insert(QStringLiteral("value"), member.value));
    return JsonValue::object()
        .insert(QStringLiteral("name"), info.name)
        .insert(QStringLiteral("members"), std::move(members));
}

JsonValue record(const RecordInfo &info)
{
    JsonValue fields = JsonValue::array();
    for (const PropertyInfo &field : info.fields)
        fields.append(typed(field));
    return JsonValue::object()
        .insert(QStringLiteral("name"), info.name)
        .insert(QStringLiteral("fields"), std::move(fields));
}

} // namespace

JsonValue TypeInfoJson::describe(const TypeLibrary &library)
{
    JsonValue methods = JsonValue::array();
    for (const MethodInfo &info : library.methods())
        methods.append(method(info));
    JsonValue properties = JsonValue::array();
    for (const PropertyInfo &info : library.properties())
        properties.append(typed(info));
    JsonValue enums = JsonValue::array();
    for (const EnumInfo &info : library.enumerations())
        enums.append(enumeration(info));
    JsonValue records = JsonValue::array();
    for (const RecordInfo &info : library.records())
        records.append(record(info));
    return JsonValue::object()
        .insert(QStringLiteral("methods"), std::move(methods))
        .insert(QStringLiteral("properties"), std::move(properties))
        .insert(QStringLiteral("enumerations"), std::move(enums))
        .insert(QStringLiteral("records"), std::move(records));
}

JsonValue TypeInfoJson::describeAll()
{
    JsonValue json = describe(AutomationClass::library().typeLibrary());
    JsonValue classes = JsonValue::array();
    for (const AutomationClass &cls : AutomationClass::all().mid(1)) {
        JsonValue entry = JsonValue::object().insert(QStringLiteral("name"), cls.name);
        const JsonValue type = describe(cls.typeLibrary());
        for (const auto &[field, value] : type.toObject())
            entry.insert(field, value);
        classes.append(std::move(entry));
    }
    return json.insert(QStringLiteral("classes"), std::move(classes));
}

} // namespace qor

// The compiled part of the Python package qorgenlib: the number functions in
// the shape Python programs know, and the bridge's session behind GenLib.

#include "python/belgiannumbers.h"
#include "python/einvoicedocument.h"
#include "python/numberfunctions.h"
#include "python/paymentnumbers.h"
#include "python/pythontext.h"
#include "python/sessionobject.h"

#include "payments/belgianbanks.h"

#include <pybind11/pybind11.h>

namespace py = pybind11;
using namespace qor::python;

namespace {

py::bytes bytesOf(const QByteArray &data)
{
    return py::bytes(data.constData(), size_t(data.size()));
}

QByteArray byteArrayOf(const py::bytes &bytes)
{
    const std::string_view view(bytes);
    return QByteArray(view.data(), qsizetype(view.size()));
}

// What work makes of the bytes, worked out without holding the interpreter.
template <typename Work> auto withoutInterpreter(const py::bytes &bytes, Work work)
{
    const QByteArray input = byteArrayOf(bytes);
    py::gil_scoped_release release;
    return work(input);
}

// info and to_bic: the bank of the bank code of a Belgian IBAN.
void addBankLookup(py::module_ &module)
{
    module.def(
        "info",
        [](py::handle number) {
            py::dict info;
            if (const auto bank = bankOfBelgianAccount(requireText(number))) {
                info["bic"] = bank->bic.isEmpty() ? py::object(py::none()) : pythonText(bank->bic);
                info["bank"] = pythonText(bank->name);
            }
            return info;
        },
        py::arg("number"),
        "The bank of a Belgian IBAN's bank code: {'bic': ... or None, 'bank': ...}, or {} when "
        "the code is not in the National Bank's list. The check digits are not checked.");
    module.def(
        "to_bic",
        [](py::handle number) -> py::object {
            const auto bank = bankOfBelgianAccount(requireText(number));
            if (!bank || bank->bic.isEmpty())
                return py::none();
            return pythonText(bank->bic);
        },
        py::arg("number"), "The BIC of a Belgian IBAN's bank, or None.");
}

py::list pythonTexts(const QStringList &texts)
{
    py::list list;
    for (const QString &text : texts)
        list.append(pythonText(text));
    return list;
}

void addInvoiceWriting(py::module_ &module)
{
    module.def(
        "einvoice_ubl",
        [](py::bytes json) {
            const UblDocument made = withoutInterpreter(json, ublFromJson);
            return py::make_tuple(bytesOf(made.document), pythonTexts(made.errors));
        },
        py::arg("json"),
        "(UBL document, []) of an invoice as UTF-8 JSON, or (b'', messages) naming the "
        "members that cannot be taken.");
}

void addInvoiceReading(py::module_ &module)
{
    module.def(
        "einvoice_read",
        [](py::bytes document) {
            const ReadDocument made = withoutInterpreter(document, jsonFromUbl);
            py::list differences;
            for (const QStringList &difference : made.differences)
                differences.append(py::tuple(pythonTexts(difference)));
            return py::make_tuple(bytesOf(made.json), pythonTexts(made.errors),
                pythonTexts(made.dropped), differences);
        },
        py::arg("document"),
        "(model as UTF-8 JSON, errors, dropped elements, amount differences) of a UBL document.");
}

void addSession(py::module_ &module)
{
    py::class_<SessionObject>(module, "Session",
        "The bridge's session: one library object, the module state of its thread and a "
        "recording platform; requests and responses are JSON lines as qorgen batch reads "
        "and writes them.")
        .def(py::init<>())
        .def(
            "request",
            [](SessionObject &session, py::bytes line) {
                if (!session.isOwnThread())
                    throw py::value_error("a GenLib serves the thread that made it");
                return bytesOf(withoutInterpreter(line,
                    [&session](const QByteArray &request) { return session.request(request); }));
            },
            py::arg("line"))
        .def_static("type_information", [] { return bytesOf(SessionObject::typeInformation()); });
}

} // namespace

PYBIND11_MODULE(_core, module)
{
    module.doc() = "The compiled part of qorgenlib.";
    addValidationErrors(module);
    py::module_ be = module.def_submodule("be", "Belgian numbers.");
    py::module_ vat = be.def_submodule("vat", "Belgian enterprise (VAT) numbers.");
    addNumberFunctions(vat, belgianVat);
    py::module_ nn = be.def_submodule("nn", "Belgian national register numbers.");
    addNumberFunctions(nn, nationalNumber);
    py::module_ ogm = be.def_submodule("ogm", "Belgian structured payment references.");
    addNumberFunctions(ogm, structuredReference);
    py::module_ beIban = be.def_submodule("iban", "Belgian IBANs and their banks.");
    addNumberFunctions(beIban, belgianAccount);
    addBankLookup(beIban);
    py::module_ iban = module.def_submodule("iban", "International bank account numbers.");
    addNumberFunctions(iban, internationalAccount);
    py::module_ iso11649 = module.def_submodule("iso11649", "ISO 11649 creditor references.");
    addNumberFunctions(iso11649, creditorReference);
    addInvoiceWriting(module);
    addInvoiceReading(module);
    addSession(module);
}

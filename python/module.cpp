// The compiled part of the Python package qorgenlib: the number functions in
// the shape Python programs know, and the bridge's session behind GenLib.

#include "python/belgiannumbers.h"
#include "python/numberfunctions.h"
#include "python/sessionobject.h"

#include <pybind11/pybind11.h>

namespace py = pybind11;
using namespace qor::python;

namespace {

py::bytes bytesOf(const QByteArray &data)
{
    return py::bytes(data.constData(), size_t(data.size()));
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
                const std::string_view text(line);
                const QByteArray request(text.data(), qsizetype(text.size()));
                QByteArray response;
                {
                    py::gil_scoped_release release;
                    response = session.request(request);
                }
                return bytesOf(response);
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
    addSession(module);
}

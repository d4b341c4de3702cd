#include "python/numberfunctions.h"

#include "python/pythontext.h"

namespace qor::python {

namespace py = pybind11;

namespace {

// Longer texts are compacted and checked without holding the interpreter.
constexpr qsizetype longText = 4096;

struct ValidationErrors
{
    py::object base;
    py::object length;
    py::object format;
    py::object checksum;
    py::object component;
};

ValidationErrors &validationErrors()
{
    static ValidationErrors *errors = new ValidationErrors; // lives as long as the interpreter
    return *errors;
}

py::object newError(py::module_ &module, const char *name, py::handle base, const char *doc)
{
    const std::string qualified = std::string("qorgenlib.") + name;
    PyObject *made = PyErr_NewExceptionWithDoc(qualified.c_str(), doc, base.ptr(), nullptr);
    if (!made)
        throw py::error_already_set();
    py::object error = py::reinterpret_steal<py::object>(made);
    module.attr(name) = error;
    return error;
}

[[noreturn]] void raise(const py::object &error, const char *message)
{
    PyErr_SetString(error.ptr(), message);
    throw py::error_already_set();
}

template <typename Work> auto withoutInterpreterWhenLong(const QString &text, Work work)
{
    if (text.size() < longText)
        return work();
    py::gil_scoped_release release;
    return work();
}

QString compacted(const NumberKind &kind, const QString &text)
{
    return withoutInterpreterWhenLong(text, [&] { return kind.compact(text); });
}

Fault faultOf(const NumberKind &kind, const QString &text, QString &compact)
{
    return withoutInterpreterWhenLong(text, [&] {
        compact = kind.compact(text);
        return kind.check(compact);
    });
}

// is_valid runs in loops over many numbers, so it is a plain function of the
// interpreter that takes its one argument as it comes, without pybind11's
// handling of arguments; the capsule it is bound to holds its kind of number.
PyObject *isValid(PyObject *capsule, PyObject *number)
{
    const auto *kind = static_cast<const NumberKind *>(PyCapsule_GetPointer(capsule, nullptr));
    thread_local QString text; // keeps its buffer from number to number
    try {
        if (!kind || !readText(number, text))
            Py_RETURN_FALSE;
        QString compact;
        if (faultOf(*kind, text, compact) == Fault::None)
            Py_RETURN_TRUE;
        Py_RETURN_FALSE;
    } catch (const std::bad_alloc &) {
        return PyErr_NoMemory();
    }
}

PyMethodDef isValidDefinition { "is_valid", isValid, METH_O,
    "is_valid(number)\n\nTrue when the number is valid; never raises." };

void addIsValid(py::module_ &module, const NumberKind &kind)
{
    py::capsule capsule(static_cast<const void *>(&kind));
    PyObject *function = PyCFunction_NewEx(&isValidDefinition, capsule.ptr(), nullptr);
    if (!function)
        throw py::error_already_set();
    module.attr("is_valid") = py::reinterpret_steal<py::object>(function);
}

} // namespace

void addValidationErrors(py::module_ &module)
{
    ValidationErrors &errors = validationErrors();
    errors.base = newError(module, "ValidationError", PyExc_ValueError,
        "A number is not valid; the subclass says why.");
    errors.length = newError(
        module, "InvalidLength", errors.base, "The number has too many or too few characters.");
    errors.format = newError(module, "InvalidFormat", errors.base,
        "The number holds characters it cannot hold, or stands for zero.");
    errors.checksum = newError(module, "InvalidChecksum", errors.base,
        "The check digits do not match the rest of the number.");
    errors.component = newError(module, "InvalidComponent", errors.base,
        "A part of the number (a country, a bank) is not one that exists.");
}

void offerValidationErrors(py::module_ &module)
{
    const ValidationErrors &errors = validationErrors();
    module.attr("ValidationError") = errors.base;
    module.attr("InvalidLength") = errors.length;
    module.attr("InvalidFormat") = errors.format;
    module.attr("InvalidChecksum") = errors.checksum;
    module.attr("InvalidComponent") = errors.component;
}

void raiseFault(Fault fault)
{
    const ValidationErrors &errors = validationErrors();
    switch (fault) {
    case Fault::None: return;
    case Fault::Length: raise(errors.length, "The number has too many or too few characters.");
    case Fault::Format:
        raise(errors.format, "The number holds characters it cannot hold, or stands for zero.");
    case Fault::Checksum: raise(errors.checksum, "The check digits do not match the number.");
    case Fault::Component: raise(errors.component, "A part of the number does not exist.");
    }
}

void addNumberFunctions(py::module_ &module, const NumberKind &kind)
{
    offerValidationErrors(module);
    module.def(
        "compact",
        [&kind](py::handle number) { return pythonText(compacted(kind, requireText(number))); },
        py::arg("number"), "The number without separators and blanks, as it is stored.");
    module.def(
        "validate",
        [&kind](py::handle number) {
            const std::optional<QString> text = textOf(number);
            if (!text)
                raiseFault(Fault::Format);
            QString compact;
            raiseFault(faultOf(kind, *text, compact));
            return pythonText(compact);
        },
        py::arg("number"),
        "The compact number when it is valid; otherwise raises the ValidationError that says why.");
    addIsValid(module, kind);
    module.def(
        "format",
        [&kind](py::handle number) {
            const QString text = requireText(number);
            return pythonText(
                withoutInterpreterWhenLong(text, [&] { return kind.format(kind.compact(text)); }));
        },
        py::arg("number"), "The number written as people read it (not checked).");
}

} // namespace qor::python

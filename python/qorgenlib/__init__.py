"""qorGenLib for Python: Belgian number checks and the library object.

    import qorgenlib
    qorgenlib.be.vat.is_valid("BE 0403.170.701")      # True
    lib = qorgenlib.GenLib()
    land = qorgenlib.Ref("")
    lib.ControleerVAT(qorgenlib.Ref("0403 170 701"), False, land)   # '0403.170.701'; land.value == 'BE'

See docs/python.md.
"""

import builtins
import datetime
import json
import sys

from . import _core, einvoice
from ._core import (InvalidChecksum, InvalidComponent, InvalidFormat, InvalidLength,
                    ValidationError, be, iban, iso11649)

__all__ = ["GenLib", "Ref", "Empty", "Missing", "RuntimeError", "ValidationError",
           "InvalidLength", "InvalidFormat", "InvalidChecksum", "InvalidComponent", "be", "iban",
           "iso11649", "einvoice"]

# `import qorgenlib.be.vat` and `from qorgenlib.be import vat` both work.
for _module in (be, be.vat, be.nn, be.ogm, be.iban, iban, iso11649):
    _module.__name__ = "qorgenlib." + _module.__name__.split("._core.", 1)[-1]
    sys.modules[_module.__name__] = _module


class RuntimeError(builtins.RuntimeError):
    """A run-time error the library raised to its caller, with its classic number
    (6 Overflow, 9 Subscript out of range, 13 Type mismatch, ...)."""

    def __init__(self, number, description):
        super().__init__(number, description)
        self.number = number
        self.description = description

    def __str__(self):
        return "%d: %s" % (self.number, self.description)


class Ref:
    """An argument the method may write back: pass Ref(value), read .value after the call."""

    __slots__ = ("value",)

    def __init__(self, value=None):
        self.value = value

    def __repr__(self):
        return "Ref(%r)" % (self.value,)


class _Marker:
    __slots__ = ("_name", "_json")

    def __init__(self, name, json_form):
        self._name = name
        self._json = json_form

    def __repr__(self):
        return "qorgenlib." + self._name


#: The Empty value of a Variant (not None, which is Null).
Empty = _Marker("Empty", {"$empty": True})
#: Leaves an optional argument out in the middle of the list.
Missing = _Marker("Missing", {"$missing": True})


def _to_json(value):
    if isinstance(value, Ref):
        return _to_json(value.value)
    if isinstance(value, _Marker):
        return value._json
    if isinstance(value, datetime.datetime):
        return {"$date": value.replace(microsecond=0, tzinfo=None).isoformat()}
    if isinstance(value, datetime.date):
        return {"$date": value.isoformat()}
    if value is None or isinstance(value, (bool, int, float, str)):
        return value
    if isinstance(value, (list, tuple)):
        return [_to_json(element) for element in value]
    if isinstance(value, dict):
        return {str(key): _to_json(element) for key, element in value.items()}
    raise TypeError("a %s cannot be passed to the library" % type(value).__name__)


def _from_json(value):
    if isinstance(value, list):
        return [_from_json(element) for element in value]
    if isinstance(value, dict):
        if value.get("$empty") is True and len(value) == 1:
            return Empty
        if len(value) == 1 and "$date" in value:
            text = value["$date"]
            if "T" in text:
                return datetime.datetime.fromisoformat(text)
            return datetime.date.fromisoformat(text)
        return {key: _from_json(element) for key, element in value.items()}
    return value


def _write_back(given, after):
    """Puts what the method left in an argument where the caller can see it."""
    if isinstance(given, Ref):
        given.value = after
    elif isinstance(given, dict) and isinstance(after, dict):
        given.clear()
        given.update(after)
    elif isinstance(given, list) and isinstance(after, list):
        given[:] = after


# The Python exception of a request the bridge could not read: 5 unreadable
# (a text it cannot take), 7 out of memory, 438 a name the library lacks;
# arguments of the wrong number or shape (13, 449, 450) give TypeError.
_REQUEST_ERRORS = {5: ValueError, 7: MemoryError, 438: AttributeError}


class GenLib:
    """The library object, reached by the names of its methods and properties
    (case-insensitive). Dialogs are answered from `answers` (consumed by the
    next call, then emptied); `shown` and `actions` hold what the last call
    showed and asked the machine to do. A GenLib serves the thread that made it;
    a new GenLib starts its thread's module state afresh."""

    _members = None

    def __init__(self):
        object.__setattr__(self, "_session", _core.Session())
        object.__setattr__(self, "answers", [])
        object.__setattr__(self, "shown", [])
        object.__setattr__(self, "actions", [])

    @classmethod
    def _member(cls, name):
        if cls._members is None:
            info = json.loads(_core.Session.type_information())
            members = {}
            for method in info["methods"]:
                members[method["name"].lower()] = ("method", method)
            for prop in info["properties"]:
                members[prop["name"].lower()] = ("property", prop)
            cls._members = members
        return cls._members.get(name.lower())

    def __dir__(self):
        self._member("")
        return sorted(set(object.__dir__(self)) | {m["name"] for _, m in self._members.values()})

    def _request(self, request):
        request["props"] = False
        if self.answers:
            request["answers"] = _to_json(list(self.answers))
        object.__setattr__(self, "answers", [])
        try:
            line = json.dumps(request, ensure_ascii=False, allow_nan=False).encode("utf-8",
                                                                                    "surrogatepass")
        except ValueError as error:
            raise ValueError("a value cannot be passed to the library: %s" % error) from None
        response = json.loads(self._session.request(line))
        object.__setattr__(self, "shown", _from_json(response.get("shown", [])))
        object.__setattr__(self, "actions", _from_json(response.get("actions", [])))
        error = response.get("error")
        if error and "result" not in response and "args" not in response:
            kind = _REQUEST_ERRORS.get(error["number"], TypeError)
            raise kind("%d: %s" % (error["number"], error["description"]))
        return response, error

    def _call(self, method, args, kwargs):
        args = list(args)
        names = [parameter["name"].lower() for parameter in method["parameters"]]
        for name, value in kwargs.items():
            if name.lower() not in names:
                raise TypeError("%s has no parameter %s" % (method["name"], name))
            at = names.index(name.lower())
            if at < len(args) and args[at] is not Missing:
                raise TypeError("%s got two values for %s" % (method["name"], name))
            args.extend([Missing] * (at + 1 - len(args)))
            args[at] = value
        response, error = self._request({"call": method["name"],
                                         "args": [_to_json(arg) for arg in args]})
        for given, after in zip(args, response.get("args", [])):
            _write_back(given, _from_json(after))
        if error:
            raise RuntimeError(error["number"], error["description"])
        return _from_json(response.get("result"))

    def __getattr__(self, name):
        found = self._member(name)
        if found is None:
            raise AttributeError("the library has no method or property %r" % name)
        kind, member = found
        if kind == "property":
            response, error = self._request({"call": member["name"]})
            if error:
                raise RuntimeError(error["number"], error["description"])
            return _from_json(response.get("result"))

        def call(*args, **kwargs):
            return self._call(member, args, kwargs)

        call.__name__ = member["name"]
        return call

    def __setattr__(self, name, value):
        if name in ("answers", "shown", "actions"):
            object.__setattr__(self, name, list(value))
            return
        found = self._member(name)
        if found is None or found[0] != "property":
            raise AttributeError("the library has no property %r" % name)
        _, error = self._request({"call": found[1]["name"], "args": [_to_json(value)]})
        if error:
            raise RuntimeError(error["number"], error["description"])

    def set_environment(self, **env):
        """The platform the next calls see: locale="nl_BE", now="2004-05-20T08:30:00",
        systemDir=..., screen={...}, devSoundDir=... (as `env` of the bridge)."""
        self._request({"env": env})

    def reset(self):
        """Starts from a fresh library object and fresh module state."""
        self._request({"new": True})

"""GenLib: the library object by name, as the bridge serves it."""
import datetime
import threading

import pytest

import qorgenlib


@pytest.fixture
def lib():
    # The dialogs' own sounds are tested with the library; here they would add
    # the notice of a sound folder this test has no application for.
    lib = qorgenlib.GenLib()
    lib.SetSound(True)
    return lib


def test_written_back_arguments_reach_refs(lib):
    number, land = qorgenlib.Ref("BE 0403.170.701"), qorgenlib.Ref("")
    assert lib.ControleerVAT(number, False, land) == "0403.170.701"
    assert (number.value, land.value) == ("0403170701", "BE")


def test_keyword_arguments_fill_their_places(lib):
    land = qorgenlib.Ref("")
    assert lib.controleervat("0403170701", LandCode=land, MBox=False) == "0403.170.701"
    assert land.value == "BE"


def test_property_read_and_assign(lib):
    assert lib.Offset == 0
    lib.Offset = 10000
    assert lib.offset == 10000
    with pytest.raises(AttributeError):
        lib.NoSuchProperty = 1
    assert "ControleerVAT" in dir(lib)


def test_dialog_takes_the_scripted_answer_and_is_shown(lib):
    lib.answers = [7]
    assert lib.MsgBoxE("Zeker?", 4) == 7
    assert [record["kind"] for record in lib.shown] == ["MsgBoxE"]
    assert lib.shown[0]["prompt"] == "Zeker?" and lib.shown[0]["answer"] == 7
    assert lib.answers == []  # consumed by the call
    lib.GetSystemDir()
    assert lib.shown == []  # records of the last call only


def test_refused_number_tells_the_user_in_dutch(lib):
    assert lib.ControleerVAT(qorgenlib.Ref("0403170702"), True, "BE") == ""
    assert len(lib.shown) == 1 and "Ondernemingsnummer" in lib.shown[0]["prompt"]


def test_run_time_error_carries_the_classic_number(lib):
    reference = qorgenlib.Ref("999/9999/99990")
    with pytest.raises(qorgenlib.RuntimeError) as raised:
        lib.ControleerOGM(reference, False)
    assert raised.value.number == 6
    assert reference.value == "999999999990"  # cleaned before the overflow


BAD_CALLS = {
    "unknown method": (lambda lib: lib.NoSuchMethod(), AttributeError),
    "too many arguments": (lambda lib: lib.GetSystemDir(1), TypeError),
    "required argument left out": (lambda lib: lib.ControleerVAT(), TypeError),
    "bytes for a text": (lambda lib: lib.SCase(b"abc"), TypeError),
    "lone surrogate": (lambda lib: lib.SCase("a\ud800"), ValueError),
    "unknown keyword": (lambda lib: lib.SCase(Tekst="a"), TypeError),
    "keyword for a place given": (lambda lib: lib.SCase("a", xText="b"), TypeError),
}


@pytest.mark.parametrize("call,error", BAD_CALLS.values(), ids=BAD_CALLS.keys())
def test_bad_call_raises_and_the_object_goes_on(lib, call, error):
    with pytest.raises(error):
        call(lib)
    assert lib.SCase("jan") == "Jan"


def test_values_of_every_kind_travel(lib):
    lib.set_environment(locale="nl_BE")
    assert lib.CGetal("12,5") == 12.5
    assert lib.CGetal(qorgenlib.Empty) == 0
    assert lib.GetQuarterStart("20/05/2004") == datetime.date(2004, 4, 1)


def test_environment_pins_the_clock(lib):
    lib.set_environment(now="2004-05-20T08:30:00", locale="nl_BE")
    assert lib.ControleerDatum("200504", False, False) == "20/05/2004"


def test_object_serves_only_its_own_thread(lib):
    raised = []
    thread = threading.Thread(target=lambda: raised.append(
        pytest.raises(ValueError, lib.GetSystemDir)))
    thread.start()
    thread.join()
    assert len(raised) == 1


def test_objects_of_one_thread_keep_their_own_records():
    first, second = qorgenlib.GenLib(), qorgenlib.GenLib()
    first.answers = [6]
    assert first.MsgBoxE("Eerste", 4) == 6
    second.GetSystemDir()
    assert first.shown[0]["prompt"] == "Eerste" and second.shown == []


def test_threads_each_with_their_own_object_keep_apart():
    results = {}

    def work(offset):
        lib = qorgenlib.GenLib()
        lib.SetSound(True)
        lib.Offset = offset
        for answer in (6, 7) * 20:
            lib.answers = [answer]
            shown_alone = lib.MsgBoxE("?", 4) == answer and len(lib.shown) == 1
            if not shown_alone or lib.Offset != offset:
                results[offset] = "mixed up"
                return
        results[offset] = "apart"

    threads = [threading.Thread(target=work, args=(offset,)) for offset in (0, 10000, 20000)]
    for thread in threads:
        thread.start()
    for thread in threads:
        thread.join()
    assert results == {0: "apart", 10000: "apart", 20000: "apart"}

#!/usr/bin/env python3
"""Checks our property lists against Python's plistlib, and writes files with it.

check_plist.py FILE EXPECTED_JSON          load FILE with plistlib, compare
check_plist.py --keyed FILE EXPECTED_JSON  the same after resolving a keyed archive
check_plist.py --write OUT --format binary|xml

JSON cannot say everything a property list can, so EXPECTED_JSON tags values:
{"$real": "<16 hex digits of the IEEE bits>"}, {"$date": seconds since 2001},
{"$data": "<base64>"}, {"$uid": n}. Plain JSON numbers are integers.
Exits 0 when equal; otherwise prints the difference and exits 1.
"""
import base64
import datetime
import json
import math
import plistlib
import struct
import sys

REFERENCE = datetime.datetime(2001, 1, 1)


def bits(x):
    return struct.pack(">d", x).hex()


def compare(actual, expected, path="root"):
    if isinstance(expected, dict) and len(expected) == 1 and next(iter(expected)).startswith("$"):
        tag, value = next(iter(expected.items()))
        if tag == "$real":
            want = struct.unpack(">d", bytes.fromhex(value))[0]
            ok = isinstance(actual, float) and (bits(actual) == value or (math.isnan(actual) and math.isnan(want)))
        elif tag == "$date":
            # plistlib keeps microseconds only.
            ok = isinstance(actual, datetime.datetime) and \
                abs((actual.replace(tzinfo=None) - REFERENCE).total_seconds() - value) < 1e-6
        elif tag == "$data":
            ok = actual == base64.b64decode(value)
        elif tag == "$uid":
            ok = isinstance(actual, plistlib.UID) and actual.data == value
        else:
            ok = False
        if not ok:
            raise AssertionError(f"{path}: got {actual!r}, expected {expected!r}")
    elif isinstance(expected, dict):
        if not isinstance(actual, dict) or sorted(actual) != sorted(expected):
            raise AssertionError(f"{path}: got {actual!r}, expected keys {sorted(expected)}")
        for key in expected:
            compare(actual[key], expected[key], f"{path}.{key}")
    elif isinstance(expected, list):
        if not isinstance(actual, list) or len(actual) != len(expected):
            raise AssertionError(f"{path}: got {actual!r}, expected {len(expected)} elements")
        for i, (a, e) in enumerate(zip(actual, expected)):
            compare(a, e, f"{path}[{i}]")
    elif isinstance(expected, bool) or isinstance(expected, str):
        if type(actual) is not type(expected) or actual != expected:
            raise AssertionError(f"{path}: got {actual!r}, expected {expected!r}")
    elif isinstance(expected, int):
        if isinstance(actual, bool) or not isinstance(actual, int) or actual != expected:
            raise AssertionError(f"{path}: got {actual!r}, expected {expected!r}")
    else:
        raise AssertionError(f"{path}: cannot compare with {expected!r}")


def unarchive(archive):
    """A minimal keyed unarchiver for the classes our archives use."""
    assert archive["$archiver"] == "NSKeyedArchiver" and archive["$version"] == 100000
    objects = archive["$objects"]
    assert objects[0] == "$null"

    def resolve(uid):
        assert isinstance(uid, plistlib.UID)
        obj = objects[uid.data]
        if not isinstance(obj, dict):
            return obj
        cls = objects[obj["$class"].data]
        name = cls["$classname"]
        assert cls["$classes"] == [name, "NSObject"]
        if name == "NSDictionary":
            return {resolve(k): resolve(v) for k, v in zip(obj["NS.keys"], obj["NS.objects"])}
        if name == "NSArray":
            return [resolve(v) for v in obj["NS.objects"]]
        if name == "NSDate":
            return REFERENCE + datetime.timedelta(seconds=obj["NS.time"])
        raise AssertionError(f"unexpected class {name}")

    assert archive["$top"]["root"] == plistlib.UID(1)
    return resolve(archive["$top"]["root"])


SAMPLE = {
    "string": "h\u00e9llo \u20ac \U0001F600 <&>",
    "empty": "",
    "int": 42,
    "negative": -7,
    "big": 2**62,
    "real": 0.1 + 0.2,
    "tiny": 1e-310,
    "negativeZero": -0.0,
    "yes": True,
    "no": False,
    "data": b"\x00\x01\xfe\xff",
    "date": datetime.datetime(2024, 7, 1, 12, 30, 45),
    "array": [1, "two", 3.5, [], {}],
    "nested": {"list": list(range(20)), "key with space": {"x": "y"}},
}


def main(argv):
    if argv[:1] == ["--write"] and len(argv) == 4 and argv[2] == "--format":
        fmt = plistlib.FMT_BINARY if argv[3] == "binary" else plistlib.FMT_XML
        with open(argv[1], "wb") as f:
            plistlib.dump(SAMPLE, f, fmt=fmt, sort_keys=True)
        return 0
    keyed = argv[:1] == ["--keyed"]
    if keyed:
        argv = argv[1:]
    if len(argv) != 2:
        print(__doc__, file=sys.stderr)
        return 2
    with open(argv[0], "rb") as f:
        value = plistlib.load(f)
    with open(argv[1], encoding="utf-8") as f:
        expected = json.load(f)
    try:
        compare(unarchive(value) if keyed else value, expected)
    except AssertionError as e:
        print(e)
        return 1
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))

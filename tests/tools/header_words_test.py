#!/usr/bin/env python3
"""header_words_test.py FOLDER COMPILER: what the extractor reads of headers in the form that it tells of."""
import subprocess
import sys
import unittest

sys.path.insert(0, sys.argv[1])
sys.dont_write_bytecode = True
import header_words  # noqa: E402

COMPILER = sys.argv[2]

HEADER = r'''
extern "C" {
/*
 * nShared, nOther  "Told once",
 *                  on two lines */
/* "Command": first
 * and second line. */
typedef struct FIRST_INFO {
    int32_t nPort; /* "Port": 1 to
                      65535 */
    /* Above. */
    char szName[64 /* of a constant */];
    int32_t nSlot[2]; /* "Address"."Slot", "Old" */ uint8_t bLast /* of a macro's last member */;
    const char* pszText;
    FIRST_KIND emKind; /* "Kind" */
} FIRST_INFO;
/* ---- A part of the file ---- */
/* Second. Members without a word are as in FIRST_INFO. */
typedef struct SECOND_INFO { int32_t nChannels[4][2]; /* "Lists"[..]."Channel" */
    int32_t nPort; } SECOND_INFO;
/* An event. */
#define HEAD(count)    \
    int32_t nShared;   \
    int32_t nHere; /* "Here": seconds until it ends */ \
    int32_t count
typedef struct DEV_EVENT_THIRD_INFO {
    HEAD(nNumber); /* nNumber: "Number" */
    int32_t nOther;
} DEV_EVENT_THIRD_INFO;
/* Kinds. */
typedef enum FIRST_KIND {
    FIRST_KIND_UNKNOWN = -1,
    FIRST_KIND_ONE,        /* "One": the first,
                              and told on two lines */
    FIRST_KIND_NINE = 0x9, /* "Nine" */
    FIRST_KIND_TEN         /* "Ten" */
} FIRST_KIND;
enum { PLAIN_A = 1 /* "A" */, PLAIN_B = PLAIN_A << 4 };
/* Of a macro. */
#define A_MACRO 1

enum { APART = 1 };
/* Of another macro. */
#define ANOTHER_MACRO 1

/* Right above. */
enum { ABOVE = 1 };
}
'''


def read():
    made = subprocess.run([COMPILER, "-x", "c++", "-E", "-CC", "-"], input=HEADER.encode(), stdout=subprocess.PIPE,
                          check=True)
    return header_words.words_of(made.stdout.decode())


class HeaderWords(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        words = read()
        cls.records = {record["name"]: record for record in words["records"]}
        cls.enumerations = words["enumerations"]

    def member(self, record, name):
        return next(each for each in self.records[record]["members"] if each["name"] == name)

    def test_records(self):
        self.assertEqual(sorted(self.records), ["DEV_EVENT_THIRD_INFO", "FIRST_INFO", "SECOND_INFO"])
        self.assertTrue(self.records["FIRST_INFO"]["doc"].endswith('"Command": first and second line.'))
        self.assertEqual(self.records["SECOND_INFO"]["doc"], "Second. Members without a word are as in FIRST_INFO.")
        self.assertEqual([each["name"] for each in self.records["FIRST_INFO"]["members"]],
                         ["nPort", "szName", "nSlot", "bLast", "pszText", "emKind"])

    def test_members(self):
        self.assertEqual(self.member("FIRST_INFO", "nPort"), {
            "name": "nPort", "type": "int32_t", "doc": '"Port": 1 to 65535', "unit": "", "range": [1, 65535]})
        self.assertEqual(self.member("FIRST_INFO", "szName")["doc"], "Above.")
        self.assertEqual(self.member("FIRST_INFO", "nSlot")["doc"], '"Address"."Slot", "Old"')
        self.assertEqual(self.member("FIRST_INFO", "bLast")["doc"], "of a macro's last member")
        self.assertEqual(self.member("FIRST_INFO", "pszText")["doc"], "")
        self.assertEqual(self.member("FIRST_INFO", "pszText")["type"], "const char*")
        self.assertEqual(self.member("FIRST_INFO", "emKind")["type"], "FIRST_KIND")
        self.assertEqual(self.member("SECOND_INFO", "nChannels")["doc"], '"Lists"[..]."Channel"')

    def test_members_that_others_tell_of(self):
        self.assertEqual(self.member("SECOND_INFO", "nPort")["doc"], '"Port": 1 to 65535')
        self.assertEqual(self.member("DEV_EVENT_THIRD_INFO", "nShared")["doc"], '"Told once", on two lines')
        self.assertEqual(self.member("DEV_EVENT_THIRD_INFO", "nOther")["doc"], '"Told once", on two lines')
        self.assertEqual(self.member("DEV_EVENT_THIRD_INFO", "nHere")["doc"], '"Here": seconds until it ends')
        self.assertEqual(self.member("DEV_EVENT_THIRD_INFO", "nHere")["unit"], "seconds")
        self.assertEqual(self.member("DEV_EVENT_THIRD_INFO", "nNumber")["doc"], '"Number"')

    def test_constants(self):
        kinds, plain, apart, above = self.enumerations
        self.assertEqual((kinds["name"], kinds["doc"]), ("FIRST_KIND", "Kinds."))
        self.assertEqual(kinds["constants"], [
            {"name": "FIRST_KIND_UNKNOWN", "value": -1, "doc": ""},
            {"name": "FIRST_KIND_ONE", "value": 0, "doc": '"One": the first, and told on two lines'},
            {"name": "FIRST_KIND_NINE", "value": 9, "doc": '"Nine"'},
            {"name": "FIRST_KIND_TEN", "value": 10, "doc": '"Ten"'}])
        self.assertEqual((plain["name"], plain["doc"]), ("", ""))
        self.assertEqual(plain["constants"], [{"name": "PLAIN_A", "value": 1, "doc": '"A"'},
                                              {"name": "PLAIN_B", "value": 16, "doc": ""}])

        self.assertEqual((apart["doc"], above["doc"]), ("", "Right above."))

    def test_a_file_that_begins_with_its_codes(self):
        told = header_words.words_of('# 1 "orrery/one.h" 1\n/* Codes. */\n\nenum { ONE = 1 };\n\nenum { TWO = 2 };\n'
                                     '# 1 "orrery/two.h" 1\n/* Not of codes. */\n\nextern "C" {\nenum { SIX = 6 };\n}\n')
        self.assertEqual([each["doc"] for each in told["enumerations"]], ["Codes.", "", ""])

    def test_units(self):
        for doc, unit in {'"Delay": seconds': "seconds", '"Delay": seconds until it ends': "seconds",
                          '"Speed": at most, km/h': "kilometres an hour", '"Free": free megabytes': "megabytes",
                          '"Light": brightness, 0 to 100': "", '"Flux": megabytes or minutes': "",
                          '"Text": bytes as they stand': "", 'the first 16 bytes of each': "",
                          '"Seconds": number of them': "", '"Pan": in tenths of a degree': "tenths of a degree",
                          '"Rate": bytes (of a second)': "bytes"}.items():
            self.assertEqual(header_words.unit_of(doc), unit, doc)

    def test_ranges(self):
        for doc, limits in {'"Level": sensitivity, 1 to 6': [1, 6], '"Level": 0 to 100 as a rule': [0, 100],
                            '"Pan": tenths of a degree, -1800 to 1800; 1 to -1 in the text': [-1800, 1800],
                            '"Week": 1 to 4, -1 the last': None, '"Gain": 0 to 10; 0 is not written': [0, 10],
                            '"Mode": of levels 1 to 3 the first': None, '"Delay": 3 to 300 seconds': [3, 300],
                            '"1 to 6": a text': None, '"Turn": 1 to -1': None}.items():
            self.assertEqual(header_words.range_of(doc), limits, doc)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])

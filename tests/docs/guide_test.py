"""The guide for developers of hosts names what the code has: every method, member, error number, file and link."""

import re
import unittest
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]


def text(path):
    return (ROOT / path).read_text(encoding="utf-8")


GUIDE = text("docs/integration.md")
EXAMPLES = {path: text(path) for path in ("examples/vbscript/host.vbs", "examples/jscript/host.js",
                                          "examples/cpp/host.cpp")}


def methods():
    return re.findall(r"HRESULT (\w+)\(", text("activex/ActiveNeridaToolbar.idl"))


def members():
    """The names by which the library asks the model."""
    code = text("core/model_object.h") + text("core/model_object.cpp")
    return set(re.findall(r'\b(?:get|let|call)\("(\w+)"', code)) - {"length"}


class Guide(unittest.TestCase):
    def test_methods(self):
        self.assertEqual(9, len(methods()))
        for method in methods():
            self.assertIn(f"| `{method}(", GUIDE)

    def test_members(self):
        self.assertGreaterEqual(len(members()), 40)
        for member in members():
            self.assertIn(f"`{member}`", GUIDE)

    def test_examples_have_every_member(self):
        for path, code in EXAMPLES.items():
            for member in members():
                self.assertRegex(code, rf"\b{member}\b", path)

    def test_names_that_look_like_members_exist(self):
        known = members() | set(methods())
        preview = set(re.findall(r'"(\w+)"', text("platform/win32/preview.h") + text("platform/win32/preview.cpp")))
        installed = {"Dictionary", "System", "Help", "Styles", "LiveText", "Expansion", "DefaultDirectory", "Models"}
        stored = {"Browser", "Toolbar", "Trace", "File", "Zephra", "LastColor", "PrevColor0", "PrevColor7"}
        others = {"Nothing", "ByRef", "GetMessage", "TranslateMessage", "DispatchMessage", "TranslateAccelerator",
                  "IsDialogMessage", "SetActiveWindow", "ISupportErrorInfo", "IErrorInfo", "IDispatch"}
        named = set(re.findall(r"`([A-Z][a-z]\w+)`", GUIDE)) | set(re.findall(r"`([A-Z][A-Za-z]+[a-z])`", GUIDE))
        self.assertEqual(set(), named - known - preview - installed - stored - others)

    def test_error_numbers(self):
        numbers = dict(re.findall(r"constexpr std::int32_t (\w+) = (\d+);", text("platform/error.h")))
        for status, name in re.findall(r"\{(\w+), error::(\w+)\}", text("platform/win32/status.cpp")):
            if status == "REGDB_E_CLASSNOTREG":  # no answer of a model's
                continue
            row = next((line for line in GUIDE.splitlines() if line.startswith("|") and f"`{status}`" in line
                        and numbers[name] in line), None)
            self.assertTrue(row, f"{status} is {numbers[name]}")

    def test_registry_values(self):
        code = text("catalog/installation_paths.cpp")
        for prefix in re.findall(r'\{"(\w{3})", &Paths', code) + re.findall(r'nameBegins\(value, "(\w{3})"\)', code):
            self.assertRegex(GUIDE, rf"\n\| `{prefix}\w+`")

    def test_links_inside_the_page(self):
        anchors = {re.sub(r"[^\w\- ]", "", title.lower()).replace(" ", "-")
                   for title in re.findall(r"^#+ (.+)$", GUIDE, re.M)}
        for link in re.findall(r"\]\(#([^)]+)\)", GUIDE):
            self.assertIn(link, anchors)


if __name__ == "__main__":
    unittest.main()

// Recursion without end is an error of the script, and not the end of the program.

#include "scripting/scripttest.h"

using namespace Corvex::Scripting;

namespace {

struct Recursion {
  const char* name;
  const char* script;
};

void PrintTo(const Recursion& recursion, std::ostream* out) { *out << recursion.name; }

class EndlessRecursion : public FakeModel::ScriptTest, public testing::WithParamInterface<Recursion> {};

const char* const helpers =
    "function nested(n) { var a = []; for (var i = 0; i < n; ++i) { a = [a]; } return a; }\n"
    "function endless() { return { get x() { return endless(); } }; }\n";

const Recursion recursions[] = {
    {"JsonOfArrays", "JSON.stringify(nested(200000));"},
    {"JsonOfGetters", "JSON.stringify(endless());"},
    {"JsonReplacer", "JSON.stringify({}, function () { return { x: 1 }; });"},
    {"JsonReviver",
     "JSON.parse('[1, 2]', function (k, v) { if (k === '0') { this[1] = nested(200000); } return v; });"},
    {"ArrayAsText", "String(nested(200000));"},
    {"ArrayAsLocaleText", "nested(200000).toLocaleString();"},
    {"ThrownArray", "throw nested(200000);"},
    {"Generator", "function* g() { yield* g(); } g().next();"},
    {"ProxyOfProxy", "var p = {}; for (var i = 0; i < 5000; ++i) { p = new Proxy(p, {}); } p.x;"},
    {"ProxyAsItsOwnPrototype", "var t = {}, p = new Proxy(t, {}); Object.setPrototypeOf(t, p); p.x;"},
    {"Function", "function f() { f(); } f();"},
    {"TextConversion", "var o = { toString: function () { return '' + o; } }; '' + o;"},
    {"Source", "source('test.js');"},
    {"Eval", "function f() { eval('f()'); } f();"},
    {"DeepText", "eval(new Array(100001).join('[') + new Array(100001).join(']'));"},
};

}  // namespace

TEST_P(EndlessRecursion, IsAScriptError) {
  const QString error = run(QByteArray(helpers) + GetParam().script).error;
  EXPECT_TRUE(error.contains(s("RangeError: ")) || error.contains(s("SyntaxError: "))) << error.toStdString();
}

INSTANTIATE_TEST_SUITE_P(Guards, EndlessRecursion, testing::ValuesIn(recursions),
                         [](const auto& recursion) { return recursion.param.name; });

namespace {

class Guards : public FakeModel::ScriptTest {};

}  // namespace

TEST_F(Guards, JsonIsThatOfTheLanguage) {
  EXPECT_EQ(errorOf(R"JS(
    test.compare(JSON.stringify({ a: [1, { b: -0.5 }], c: undefined, d: test.log, e: null, f: NaN, g: new Date(0), h: 'x\n"' }),
                 '{"a":[1,{"b":-0.5}],"e":null,"f":null,"g":"1970-01-01T00:00:00.000Z","h":"x\\n\\""}');
    test.compare(JSON.stringify([undefined, test.log, new Number(3), new String("s"), false]), '[null,null,3,"s",false]');
    test.compare(JSON.stringify(undefined), undefined);
    test.compare(JSON.stringify("text"), '"text"');
    test.compare(JSON.stringify([1, { a: 2, b: [] }], null, 2), '[\n  1,\n  {\n    "a": 2,\n    "b": []\n  }\n]');
    test.compare(JSON.stringify({ a: 1 }, null, "--"), '{\n--"a": 1\n}');
    test.compare(JSON.stringify({ a: 1, b: { a: 2, c: 3 } }, ["b", "a"]), '{"b":{"a":2},"a":1}');
    var holders = [];
    JSON.stringify({ a: [7] }, function (key, value) { holders.push(this[key] === value); return value; });
    test.compare(holders, [true, true, true]);
    test.compare(JSON.parse('[1,{"a":2}]', function (key, value) { return key === "a" ? value * 2 : value; })[1].a, 4);
    test.compare(JSON.parse("[1,2]", function (key, value) { return value === 1 ? undefined : value; })[0], undefined);
    var deep = []; for (var i = 1; i < 1024; ++i) { deep = [deep]; }
    test.compare(JSON.stringify(JSON.parse(JSON.stringify(deep))).length, 2048);
  )JS"),
            QString());
  EXPECT_EQ(listener.lines.filter(s("failed")), QStringList());
  EXPECT_EQ(errorOf("var a = {}; a.a = a; JSON.stringify(a);"),
            s("1: TypeError: JSON.stringify: the value holds itself."));
}

TEST_F(Guards, ArraysGeneratorsAndProxiesAreThoseOfTheLanguage) {
  EXPECT_EQ(errorOf(R"JS(
    var a = [1, [2, null], undefined]; a.push(a);
    test.compare(String(a), "1,2,,,");
    test.compare([[1], [2]].join("-"), "1-2");
    test.compare(Array.prototype.join.call({ length: 2, 0: "a", 1: "b" }, ""), "ab");
    function* down(n) { if (n > 0) { yield n; yield* down(n - 1); } }
    test.compare([...down(3)], [3, 2, 1]);
    var p = new Proxy({ a: 1 }, { get: function (t, key) { return key === "z" ? 26 : t[key]; } });
    p.b = p.z;
    test.compare([p.a, p.b, Object.keys(p), "b" in p, delete p.b, p.b], [1, 26, ["a", "b"], true, true, undefined]);
    test.compare(new Proxy(function (x) { return x; }, {})(3), 3);
    test.compare(new (new Proxy(function () { this.x = 1; }, {}))().x, 1);
  )JS"),
            QString());
  EXPECT_EQ(listener.lines.filter(s("failed")), QStringList());
  EXPECT_EQ(errorOf("new Proxy({});"), s("1: TypeError: A proxy needs a handler, as in new Proxy(target, handler)."));
}

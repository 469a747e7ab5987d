// What travels between menu and wire: values told apart by type, the answer as a tree, and JSON in and out.

#include "framework/communication/http/jsonutil.h"
#include "framework/communication/http/parameters.h"
#include "framework/communication/http/resultset.h"
#include "tests/testprogram.h"

namespace
{
/// A node and all below it: "key=i7", objects as key{...}.
QString shape(const ResultSet &node)
{
    const QString key = QString::fromStdString(node.key());
    switch (node.type()) {
    case ResultSet::Object: {
        QStringList children;
        for (const PResultSet &child : node.getList())
            children += shape(*child);
        return key + '{' + children.join(' ') + '}';
    }
    case ResultSet::String:
        return key + "=s" + QString::fromStdString(node.getString());
    case ResultSet::Integer:
        return key + "=i" + QString::number(node.getInt64());
    case ResultSet::Float:
        return key + "=f" + QString::number(node.getFloat());
    case ResultSet::Boolean:
        return key + (node.getBoolean() ? "=b1" : "=b0");
    default:
        return key + "=n";
    }
}

QByteArray nested(int levels)
{
    return QByteArray(levels, '[') + QByteArray(levels, ']');
}
} // namespace

class TestValueModel : public QObject
{
    Q_OBJECT

private slots:
    void valuesAreTheirVeryType()
    {
        Any any(7);
        Any copy = any;
        any = std::string("x");
        QCOMPARE(copy.cast<int>(), 7);
        QCOMPARE(any.cast<std::string>(), std::string("x"));
        QVERIFY_EXCEPTION_THROWN(copy.cast<long long>(), std::bad_cast);
        QVERIFY_EXCEPTION_THROWN(Any().cast<int>(), std::bad_cast);

        Parameters parameters;
        QVERIFY(parameters.body.insert("k", 1));
        QVERIFY(!parameters.body.insert("k", 2));
        QCOMPARE(parameters.body.getList().front().second.cast<int>(), 1);
        QVERIFY_EXCEPTION_THROWN(parameters.get<std::string>("k"), std::bad_cast);
        QVERIFY(parameters.options.insert("o", "text"));
        try {
            parameters.get<std::string>("o");
            QFAIL("an option is not of the body");
        } catch (const std::out_of_range &missing) {
            QCOMPARE(missing.what(), "No item found by the input KEY.");
        }
    }

    void answersBecomeTrees_data()
    {
        const DataRows<QByteArray, QString> row{"json", "tree"};
        row(R"({"b":[1,-2,3],"a":{"x":null}})", "{a{x=n} b{=i1 =i-2 =i3}}");
        row(R"([1,2.5,"t",true])", "{=i1 =f2.5 =st =b1}");
        row(R"("text")", "{=stext}");
        row("null", "{}");
        row("18446744073709551615", "{=i-1}");
        row("abc", "{error=sabc}");
        row("", "{error=s}");
        row("{\"a\":1", "{error=s{\"a\":1}");
        row("[1e999]", "{error=s[1e999]}");
        row("\"\xff\"", "{error=s\"\xef\xbf\xbd\"}");
        QTest::newRow("no answer is that deep")
            << nested(100000) << "{error=s" + QString(nested(100000)) + '}';
    }
    void answersBecomeTrees()
    {
        QFETCH(QByteArray, json);
        QTEST(shape(*ResultSet::fromJson(json)), "tree");
    }

    void aLongListIsReadAtOnce()
    {
        const PResultSet tree = ResultSet::fromJson('[' + QByteArray("1,").repeated(300000) + "2]");
        QCOMPARE(tree->getList().size(), size_t(300001));
        QCOMPARE(tree->getList().back()->getInt(), 2);
        QCOMPARE(ResultSet::fromJson(nested(400))->getList().size(), size_t(1));
    }

    void gettersAreNeutralOnOtherTypes()
    {
        const PResultSet tree =
            ResultSet::fromJson(R"({"i":4294967298,"f":-2.9,"s":"9","b":true,"big":1e300,"small":-1e300})");
        const auto at = [&](const char *path) { return tree->findPath(path); };
        QCOMPARE(at("i")->getInt(), 2);
        QCOMPARE(at("i")->getFloat(), 4294967298.0);
        QCOMPARE(at("f")->getInt(), -2);
        QCOMPARE(at("f")->getInt64(), -2LL);
        QCOMPARE(at("s")->getInt(), 0);
        QVERIFY(!at("i")->getBoolean() && at("b")->getBoolean());
        QCOMPARE(at("b")->getString(), std::string());
        QCOMPARE(at("big")->getInt(), std::numeric_limits<int>::max());
        QCOMPARE(at("small")->getInt64(), std::numeric_limits<long long>::min());
        QVERIFY(at("s")->getList().empty() && !at("s")->matchValue("x", "9"));
    }

    void pathsAndConditions_data()
    {
        const DataRows<QString, QString> row{"path", "found"};
        row("a.b", "b=i7");
        row("a.b.c", "b=i7");
        row(".a..b.", "b=i7");
        row("a.d", "=n");
        row("", "=n");
        row(".", "=n");
        row("x", "x=n");
        row("list.id", "id=i5");
    }
    void pathsAndConditions()
    {
        const PResultSet tree = ResultSet::fromJson(
            R"({"a":{"b":7},"x":null,"list":{"id":5,"f":5.5,"on":false,"name":"n"},"rows":[{"id":1},{"id":2}]})");
        QFETCH(QString, path);
        QTEST(shape(*tree->findPath(path.toStdString())), "found");

        const PResultSet list = tree->findPath("list");
        QVERIFY(list->matchValue("id", "5") && !list->matchValue("id", "5.0") &&
                list->matchValue("name", "n"));
        QVERIFY(list->matchValue("f", "5.500000") && !list->matchValue("f", "5.5"));
        QVERIFY(list->matchValue("on", false) && !list->matchValue("on", true) &&
                !list->matchValue("on", "0"));
        QVERIFY(!list->matchValue("none", false));
        QCOMPARE(shape(*tree->findPath({"rows"}, {{"id", "1"}})), QString("=n"));
        QCOMPARE(shape(*tree->findPath("rows")->findPath({""}, {{"id", "2"}})), QString("{id=i2}"));
        QCOMPARE(tree->findPath("rows")->getList("", 2).size(), size_t(1));
    }

    void answersOfAGroupAreFoundByName()
    {
        const auto answer = [](const char *key, const char *json, const char *id) {
            const PResultSet tree = ResultSet::fromJson(json);
            tree->setKey(key);
            tree->addId(id);
            return tree;
        };
        const PResultSet single = answer("K", R"({"data":{"v":1}})", "1");
        QCOMPARE(shape(*single->findPath("K", "data.v")), QString("v=i1"));
        QCOMPARE(shape(*single->findPath("L", "data.v")), QString("=n"));
        QCOMPARE(shape(*single->findPath("K", 1, "data")), QString("=n")); // data itself has no id
        PResultSet all = ResultSet::merge(single, answer("K", R"({"data":{"v":2}})", "2"));
        all = ResultSet::merge(all, answer("A", "{}", "3"));
        QCOMPARE(shape(*ResultSet::merge(answer("B", "{}", "4"), all)),
                 QString("Root{A{id=s3} B{id=s4} K{data{v=i1} id=s1} K{data{v=i2} id=s2}}"));
        QCOMPARE(shape(*all->findPath("K", "data.v")), QString("v=i1"));
        QCOMPARE(shape(*all->findPath("K", 2, "data.v")), QString("v=i2"));
        QCOMPARE(shape(*all->findPath("K", 2)), QString("K{data{v=i2} id=s2}"));
        QCOMPARE(shape(*all->findPath("K", 3)), QString("=n"));
        makeNull()->add(single); // no object, no effect
    }

    void theEnvelope_data()
    {
        const DataRows<QString, int, bool> row{"text", "code", "good"};
        row("success", R"({"code":0})", 0, true);
        row("failure", R"({"code":5})", 5, false);
        row("a string is no number", R"({"code":"0"})", 0, false);
        row("huge", R"({"code":1e300})", std::numeric_limits<int>::max(), false);
        row("part of one", R"({"code":0.5})", 0, false);
        row("array", R"([{"code":0}])", 0, false);
        row("no json", "{", 0, false);
        row("empty", "", 0, false);
    }
    void theEnvelope()
    {
        QFETCH(QString, text);
        QTEST(JsonUtil::getCode(text), "code");
        QTEST(JsonUtil::checkJsonFormat(text), "good");
    }

    void variantsThereAndBack_data()
    {
        // again: empty: refused
        addColumns<QByteArray, QString, QByteArray>({"reader", "text", "again"});
        const auto row = [](const char *reader, const char *text, const char *again) {
            QTest::addRow("%s %s", reader, text) << QByteArray(reader) << text << QByteArray(again);
        };
        row("map", R"({"data":{"n":-1,"u":18446744073709551615,"o":{"x":[1.5,true]},"z":null}})",
            R"({"n":-1,"o":{"x":[1.5,true]},"u":18446744073709551615})");
        row("map", R"({"data":[1]})", "");
        row("map", R"({"code":0})", "");
        row("map", "", "");
        row("list", R"({"data":[{"a":{"b":1}},"t"]})", R"([{"a":{"b":1}},"t"])");
        row("list", R"({"data":{}})", "");
        row("flat map", R"({"data":{"a":{"b":{"c":1},"d":2}}})", R"(a.b.c=1 a.d=2)");
        row("flat list", R"({"data":[{"a":{"b":1}}]})", "a.b=1");
        row("bare map", R"({"a":{"b":1}})", R"({"a":{"b":1}})");
        row("bare flat map", R"({"a":{"b":1}})", "a.b=1");
        row("bare flat list", R"([{"a":{"b":1}}])", "a.b=1");
        row("bare flat list", "[", "");
    }
    void variantsThereAndBack()
    {
        const auto [reader, text] = fetched<QByteArray, QString>({"reader", "text"});
        JsonUtil::Map map{{"kept", 1}};
        JsonUtil::List list{1};
        const QMap<QByteArray, bool> read{
            {"map", reader == "map" && JsonUtil::fromJsonToMap(text, map)},
            {"list", reader == "list" && JsonUtil::fromJsonToList(text, list)},
            {"flat map", reader == "flat map" && JsonUtil::fromJsonToKeyPathMap(text, map)},
            {"flat list", reader == "flat list" && JsonUtil::fromJsonToKeyPathList(text, list)},
            {"bare map", reader == "bare map" && JsonUtil::analysisJsonToMap(text, map)},
            {"bare flat map",
             reader == "bare flat map" && JsonUtil::fromJsonToKeyPathMapWithoutData(text, map)},
            {"bare flat list",
             reader == "bare flat list" && JsonUtil::fromJsonToKeyPathListWithoutData(text, list)},
        };
        QFETCH(QByteArray, again);
        QCOMPARE(read.value(reader), !again.isEmpty());
        QCOMPARE(map.take("kept").toInt(), 1);
        QCOMPARE(list.takeFirst().toInt(), 1);
        if (reader.contains("list") && !list.isEmpty())
            map = list.first().toMap();
        if (reader.contains("flat")) {
            QStringList pairs;
            for (auto entry = map.cbegin(); entry != map.cend(); ++entry)
                pairs += entry.key() + '=' + entry.value().toString();
            QCOMPARE(pairs.join(' ').toUtf8(), again);
        } else if (!again.isEmpty()) {
            QCOMPARE(
                QByteArray::fromStdString(reader == "list" ? JsonUtil::toJson(list) : JsonUtil::toJson(map)),
                again);
        }
    }

    void pathsBecomeObjects()
    {
        const QVariantMap map{{"a.b", 1},
                              {"a..c", QByteArray("\x01\xff")},
                              {"s", QStringList{"x", "y"}},
                              {"d", QPoint(1, 2)},
                              {"a", 5}, // gives way to the object, wherever it stands
                              {QString(100000, '.'), 1}};
        QCOMPARE(JsonUtil::toJson(map),
                 std::string(R"({"a":{"":{"c":[1,255]},"b":1},"d":null,"s":["x","y"]})"));
        QCOMPARE(JsonUtil::toJson(QVariant()), std::string("null"));
    }
};

FPD_TEST_APPLESS(TestValueModel)
#include "tst_valuemodel.moc"

#include "batch/program.h"

namespace ferna {
namespace {

using namespace ferna::testing;

const QByteArray threeCases =
    R"({"Dlug_plyty_mm": 600, "Szer_plyty_mm": 400,)"
    R"("Kotwy": [{"x": -250, "y": 0, "fi": 24}, {"x": 250, "y": 0, "fi": 24}],)"
    R"("Przypadki": [{"N": 300, "M1": 60, "M2": 0, "Vx": 1, "Vy": 0},)"
    R"({"N": 300, "M1": -60, "M2": 0, "Vx": 1, "Vy": 0}, {"N": -5, "M1": 0, "M2": 0, "Vx": 0, "Vy": 0}]})";

struct ViewFiles : Program {
    QString file(const char* name) const { return folder.path(QString::fromLatin1(name)); }
};

TEST_F(ViewFiles, OneCaseTakesTheNameOfTheFile) {
    for (const auto& [name, start] :
         {std::pair{"a.svg", "<?xml"}, {"a.png", "\x89PNG"}, {"a.pdf", "%PDF"}}) {
        EXPECT_EQ(call({task(good), QStringLiteral("--podglad"), file(name)}), 0);
        QFile written(file(name));
        ASSERT_TRUE(written.open(QIODevice::ReadOnly)) << name;
        EXPECT_TRUE(written.readAll().startsWith(start)) << name;
    }
}

TEST_F(ViewFiles, SeveralCasesHaveAFileEachAlsoOfARefusedTask) {
    EXPECT_EQ(call({task(threeCases), QStringLiteral("--podglad"), file("F.svg")}), 1);
    EXPECT_EQ(folder.names().filter(QStringLiteral("svg")).join(u'|'),
              u"F-przypadek-1-z-3.svg|F-przypadek-2-z-3.svg|F-przypadek-3-z-3.svg");
    QFile second(file("F-przypadek-2-z-3.svg"));
    ASSERT_TRUE(second.open(QIODevice::ReadOnly));
    const QByteArray svg = second.readAll();
    EXPECT_TRUE(svg.contains("Przypadek 2: N = 300 kN, M1 = -60 kNm, M2 = 0 kNm"));
    EXPECT_TRUE(svg.contains(QStringLiteral("Raport tworzy Oblicz.").toUtf8()));
}

TEST_F(ViewFiles, WhatCannotBeDrawnIsSaid) {
    QByteArray text = good;
    EXPECT_EQ(call({task(text.replace("\"fi\": 24", "\"fi\": 17")), QStringLiteral("--podglad"),
                    file("a.svg")}),
              0); // the calculation takes the diameter; there is no area for it
    EXPECT_TRUE(err.contains("a.svg: no picture: kotwa 1: ")) << err.toStdString();
    EXPECT_FALSE(QFile::exists(file("a.svg")));
}

TEST_F(ViewFiles, AnotherEndingAndAStreamAreRefused) {
    EXPECT_EQ(call({task(good), QStringLiteral("--podglad"), file("a.jpg")}), 2);
    EXPECT_TRUE(err.endsWith("a.jpg: expected a file ending in .svg, .png, .pdf\n"))
        << err.toStdString();
    EXPECT_EQ(call({QStringLiteral("--linie"), QStringLiteral("--podglad"), file("a.svg")}), 2);
    EXPECT_TRUE(err.contains("--podglad")) << err.toStdString();
}

TEST_F(ViewFiles, NoPictureTakesTheTasksPlace) {
    EXPECT_EQ(call({task(good), QStringLiteral("--podglad"), file("a.svg"),
                    QStringLiteral("--podglad"), file("a.svg")}),
              2);
    EXPECT_TRUE(err.contains("two outputs of this call")) << err.toStdString();
}

} // namespace
} // namespace ferna

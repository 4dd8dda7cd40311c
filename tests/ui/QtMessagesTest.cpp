// SPDX-License-Identifier: MIT
#include "QtMessages.h"

#include <gmock/gmock.h>

#include <QLoggingCategory>
#include <QQmlComponent>
#include <QQmlEngine>
#include <memory>

namespace zelk::tour {
namespace {

using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;

std::vector<std::string> taken() {
    std::vector<std::string> texts;
    for (const QString& text : takeQtMessages()) texts.push_back(text.toStdString());
    return texts;
}

/// Creates the object of this QML document, as if it were in the file Here.qml.
void make(const char* qml) {
    QQmlEngine engine;
    QQmlComponent component(&engine);
    component.setData(qml, QUrl(QStringLiteral("qrc:/Zelk/Here.qml")));
    const std::unique_ptr<QObject> object(component.create());
    ASSERT_NE(object, nullptr) << component.errorString().toStdString();
}

TEST(QtMessages, keepsWarningsOnce) {
    qWarning("something is wrong");
    EXPECT_THAT(taken(), ElementsAre(HasSubstr("something is wrong")));
    EXPECT_THAT(taken(), IsEmpty());
}

TEST(QtMessages, namesFileAndLineOfBinding) {
    make("import QtQml\nQtObject {\n    property var a\n    property var b: a.c\n}\n");
    EXPECT_THAT(taken(), ElementsAre(HasSubstr("Here.qml:4")));
}

TEST(QtMessages, keepsConsoleOutput) {
    make("import QtQml\nQtObject {\n    Component.onCompleted: console.log('hello')\n}\n");
    EXPECT_THAT(taken(), ElementsAre(testing::AllOf(HasSubstr("Here.qml:3"), EndsWith("hello"))));
}

TEST(QtMessages, ignoresDebugOutputAndHarmlessWarnings) {
    qDebug("a remark");
    qInfo("a remark");
    qWarning("This plugin does not support raise()");
    qWarning("QObject::connect: No such signal QPlatformNativeInterface::systemTrayWindowChanged(QScreen*)");
    EXPECT_THAT(taken(), IsEmpty());
}

}  // namespace
}  // namespace zelk::tour

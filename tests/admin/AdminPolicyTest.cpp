// SPDX-License-Identifier: MIT
// The file of questions fits the program that is asked for.
#include <gmock/gmock.h>

#include <QFile>
#include <QXmlStreamReader>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "admin/AdminCommand.h"

namespace zelk {
namespace {

using testing::ElementsAre;
using testing::Pair;

struct PolicyAction {
    std::string id;
    std::map<std::string, std::string> texts;        ///< of elements without a name of their own, English
    std::map<std::string, std::string> german;       ///< the same in German
    std::map<std::string, std::string> defaults;     ///< who is asked what
    std::map<std::string, std::string> annotations;  ///< by key
};

std::string nameOf(const QXmlStreamReader& xml) {
    return xml.name().toString().toStdString();
}

PolicyAction actionAt(QXmlStreamReader& xml) {
    PolicyAction action;
    action.id = xml.attributes().value(QStringLiteral("id")).toString().toStdString();
    while (xml.readNextStartElement()) {
        const std::string name = nameOf(xml);
        if (name == "defaults") {
            while (xml.readNextStartElement()) {
                const std::string subject = nameOf(xml);
                action.defaults[subject] = xml.readElementText().toStdString();
            }
        } else if (name == "annotate") {
            const std::string key = xml.attributes().value(QStringLiteral("key")).toString().toStdString();
            EXPECT_TRUE(action.annotations.emplace(key, xml.readElementText().toStdString()).second) << key;
        } else {
            const bool isGerman = xml.attributes().value(QStringLiteral("xml:lang")) == QStringLiteral("de");
            EXPECT_TRUE(isGerman || xml.attributes().isEmpty()) << name << " in a language that nobody reviewed";
            (isGerman ? action.german : action.texts)[name] = xml.readElementText().toStdString();
        }
    }
    return action;
}

class AdminPolicy : public testing::Test {
protected:
    void SetUp() override {
        QFile file(QStringLiteral(ZELK_SOURCE_DIR "/packaging/polkit/io.github.zelk.Zelk.policy"));
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        QXmlStreamReader xml(&file);
        ASSERT_TRUE(xml.readNextStartElement());
        ASSERT_EQ(nameOf(xml), "policyconfig");
        while (xml.readNextStartElement()) {
            if (nameOf(xml) == "action") {
                actions.push_back(actionAt(xml));
            } else {
                xml.skipCurrentElement();
            }
        }
        ASSERT_FALSE(xml.hasError()) << xml.errorString().toStdString();
    }

    std::vector<PolicyAction> actions;
};

TEST_F(AdminPolicy, everyVerbHasItsActionAndNothingElseHasOne) {
    std::vector<std::string> verbs;
    for (const PolicyAction& action : actions) {
        EXPECT_THAT(action.annotations,
                    ElementsAre(Pair("org.freedesktop.policykit.exec.argv1", testing::_),
                                Pair("org.freedesktop.policykit.exec.path", "/usr/libexec/zelk-admin")))
            << action.id;
        verbs.push_back(action.annotations.at("org.freedesktop.policykit.exec.argv1"));
        EXPECT_EQ(action.id, "io.github.zelk.Zelk." + verbs.back());
    }
    EXPECT_THAT(verbs, testing::UnorderedElementsAreArray(adminVerbs()));
}

TEST_F(AdminPolicy, administratorIsAlwaysAsked) {
    for (const PolicyAction& action : actions) {
        EXPECT_THAT(action.defaults, ElementsAre(Pair("allow_active", "auth_admin"), Pair("allow_any", "auth_admin"),
                                                 Pair("allow_inactive", "auth_admin")))
            << action.id;
    }
}

TEST_F(AdminPolicy, everyQuestionSaysWhatIsAsked) {
    std::set<std::string> messages;
    for (const PolicyAction& action : actions) {
        EXPECT_THAT(action.texts, ElementsAre(Pair("description", testing::Not("")),
                                              Pair("message", testing::StartsWith("Authentication is needed to "))))
            << action.id;
        ASSERT_THAT(action.german,
                    ElementsAre(Pair("description", testing::Not("")),
                                Pair("message", testing::StartsWith("Legitimierung ist erforderlich, um "))))
            << action.id;
        const std::string message = action.texts.at("message");
        messages.insert(message);
        // What a verb is done to is part of the question.
        const bool hasArguments = action.id != "io.github.zelk.Zelk.free-memory";
        EXPECT_EQ(message.ends_with(": $(command_line)"), hasArguments) << action.id;
        EXPECT_EQ(action.german.at("message").ends_with(": $(command_line)"), hasArguments) << action.id;
    }
    EXPECT_EQ(messages.size(), actions.size());
}

}  // namespace
}  // namespace zelk

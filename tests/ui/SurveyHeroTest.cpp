// SPDX-License-Identifier: MIT
// What stands under the scan button, and how far apart.
#include "ViewFixture.h"
#include "ui/screens/overview/SurveyScreenModel.h"

namespace zelk {

namespace {

class SurveyHeroView : public ViewFixture {
protected:
    ~SurveyHeroView() override { close(); }

    static QRectF boxOf(const QQuickItem* item) { return item->mapRectToScene(item->boundingRect()); }

    SurveyScreenModel survey_{model(), [] { return 0.0; }};
};

}  // namespace

TEST_F(SurveyHeroView, spacesButtonTextAndPillsBySixteen) {
    show(QStringLiteral("import QtQuick\nimport Zelk.App\nItem { id: page; property SurveyScreenModel survey\n"
                        "SurveyHero { width: parent.width; survey: page.survey; findings: page } }"),
         {900, 600}, {{QStringLiteral("survey"), QVariant::fromValue(&survey_)}});
    const QQuickItem* line = showing("Scan every corner of your drive in seconds.");
    ASSERT_NE(line, nullptr);
    EXPECT_EQ(boxOf(line).top() - boxOf(find("scanButton")).bottom(), 16);
    double pills = 600;
    for (QQuickItem* item : seen())
        if (nameOf(item) == "Reclaim junk") pills = std::min(pills, boxOf(item).top());
    EXPECT_EQ(pills - boxOf(line).bottom(), 16);
}

}  // namespace zelk

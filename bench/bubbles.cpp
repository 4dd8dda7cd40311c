// SPDX-License-Identifier: MIT
// Measures the bubble map: seventeen bubbles in a window of 900 x 700, rendered in software. Prints milliseconds of
// processor time, mean and worst, and the mean as a share of a frame at 60 Hz.
//
//     bubbles [--rounds N]
//
// "pack" is the layout alone. "hover" moves the pointer to another bubble and is measured from the event to the frame:
// it redraws both bubbles and the tip. "resize" widens the window by one point: a new layout with every bubble redrawn.
// The labels of "long names" have 200 characters.

#include <time.h>

#include <QCoreApplication>
#include <QGuiApplication>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <memory>
#include <numeric>
#include <string>
#include <vector>

#include "ui/charts/BubblePicture.h"
#include "ui/shell/Application.h"
#include "ui/theme/SymbolItem.h"

namespace {

using namespace zelk;

constexpr double frame = 1000.0 / 60;
constexpr QSize windowSize(900, 700);

std::vector<BubbleSlice> slices(bool longNames) {
    constexpr int count = 17;
    std::vector<BubbleSlice> all;
    for (int at = 0; at < count; ++at) {
        BubbleSlice& slice = all.emplace_back();
        slice.id = "/home/someone/folder " + std::to_string(at);
        slice.label = QStringLiteral("Folder %1").arg(at);
        if (longNames) slice.label += QString(200 - slice.label.size(), u'n');
        slice.bytes = static_cast<std::int64_t>(48e9 * std::pow(0.78, at));
        slice.color = QColor(124, 92, 255);
        slice.icon = tintedSymbol(QStringLiteral("folder.fill"), QColor(90, 170, 250), 128);
        slice.selected = at % 5 == 2;
    }
    return all;
}

/// Processor time of all threads in milliseconds, since Qt renders large surfaces with several.
double now() {
    timespec time{};
    ::clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
}

void print(const char* what, const std::vector<double>& times) {
    const double mean = std::accumulate(times.begin(), times.end(), 0.0) / static_cast<double>(times.size());
    const double worst = *std::max_element(times.begin(), times.end());
    std::printf("%-20s %7.3f ms, at worst %7.3f ms   %5.1f%% of a frame\n", what, mean, worst, 100 * mean / frame);
}

class Chart {
public:
    explicit Chart(bool longNames) {
        model_.setSlices(slices(longNames));
        engine_.addImportPath(QStringLiteral("qrc:/"));
        QQmlComponent component(&engine_);
        component.setData("import Zelk.Charts\nBubbleChart { name: 'Map' }", QUrl(QStringLiteral("qrc:/bench.qml")));
        chart_.reset(qobject_cast<BubblePicture*>(
            component.createWithInitialProperties({{QStringLiteral("model"), QVariant::fromValue(&model_)}})));
        if (chart_ == nullptr) {
            std::fprintf(stderr, "bubbles: %s\n", qPrintable(component.errorString()));
            std::exit(EXIT_FAILURE);
        }
        QObject::connect(&window_, &QQuickWindow::afterAnimating, &window_, [this] { began_ = now(); });
        QObject::connect(&window_, &QQuickWindow::frameSwapped, &window_, [this] {
            drawn_ = true;
            drawing_ = now() - began_;
        });
        chart_->setParentItem(window_.contentItem());
        chart_->setSize(windowSize);
        window_.resize(windowSize);
        costOf([this] { window_.show(); });
    }

    /// Measures the action together with the frame that shows it.
    double costOf(const std::function<void()>& action) {
        drawn_ = false;
        const double before = now();
        action();
        const double doing = now() - before;
        while (!drawn_) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        return doing + drawing_;
    }

    std::vector<double> hover(int rounds) {
        std::vector<double> times;
        for (int round = 0; round < rounds; ++round) {
            const PackedCircle& circle = chart_->packed()[static_cast<std::size_t>(round) % chart_->packed().size()];
            const QPointF point(circle.center.x, circle.center.y);
            times.push_back(costOf([&] {
                QHoverEvent event(QEvent::HoverMove, point, point, point, Qt::NoModifier);
                QCoreApplication::sendEvent(chart_.get(), &event);
            }));
        }
        return times;
    }

    std::vector<double> resize(int rounds) {
        std::vector<double> times;
        for (int round = 0; round < rounds; ++round)
            times.push_back(costOf([&] { chart_->setSize(windowSize - QSize(round % 100 + 1, round % 70)); }));
        return times;
    }

private:
    BubbleModel model_{{}};
    QQmlEngine engine_;
    QQuickWindow window_;
    std::unique_ptr<BubblePicture> chart_;
    double began_ = 0;
    double drawing_ = 0;
    bool drawn_ = false;
};

std::vector<double> packing(int rounds) {
    std::vector<PackItem> items;
    for (const BubbleSlice& slice : slices(false)) items.push_back({slice.id, slice.bytes});
    std::vector<double> times;
    for (int round = 0; round < rounds; ++round) {
        const double before = now();
        if (pack(items, windowSize.width() + round % 100, windowSize.height()).size() != items.size())
            std::exit(EXIT_FAILURE);
        times.push_back(now() - before);
    }
    return times;
}

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_QUICK_BACKEND", "software");
    QGuiApplication application(argc, argv);
    const bool given = argc == 3 && std::string(argv[1]) == "--rounds";
    const int rounds = given ? std::atoi(argv[2]) : 300;
    if (rounds < 1 || (argc != 1 && !given)) {
        std::fprintf(stderr, "usage: bubbles [--rounds N]\n");
        return 2;
    }
    dressApplication();
    registerInterface();

    print("pack", packing(rounds));
    Chart chart(false);
    print("hover", chart.hover(rounds));
    print("resize", chart.resize(rounds));
    Chart wordy(true);
    print("hover, long names", wordy.hover(rounds));
    print("resize, long names", wordy.resize(rounds));
    return 0;
}

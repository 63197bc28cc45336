#include <QAbstractButton>
#include <QApplication>
#include <QElapsedTimer>
#include <QProcess>
#include <QTemporaryDir>
#include <algorithm>
#include <cstdio>
#include <vector>

#include "desktop/desktop_session.h"
#include "desktop/grid_view.h"
#include "desktop/look.h"
#include "drawing/fonts.h"
#include "shell/base/driver_file.h"
#include "shell/base/text_file.h"
#include "shell/forms/keys.h"
#include "shell/grid_rows.h"
#include "shell/launcher.h"
#include "suite/module_list.h"

// How long a user waits: from the start of the program until the launcher is drawn, from the press of a
// module's button until its window is drawn, and for one key in a grid of 500 rows. Needs a display:
//
//     xvfb-run -a -s "-screen 0 1024x768x24" build/release/bin/bench_start

namespace {

using vantore::FormWindow;

constexpr int runs = 9;
constexpr int keyStrokes = 200;
constexpr int fullGrid = 500; // rows
constexpr double nanosecondsPerMillisecond = 1e6;

double milliseconds(const QElapsedTimer& timer) {
    return static_cast<double>(timer.nsecsElapsed()) / nanosecondsPerMillisecond;
}

/// Waits until a window's content has been painted and has reached the display.
class PaintWait : public QObject {
  public:
    explicit PaintWait(FormWindow& window) { window.canvas().installEventFilter(this); }

    void wait() {
        while (!painted_) QApplication::processEvents(QEventLoop::WaitForMoreEvents);
        QApplication::sync();
    }

  protected:
    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        painted_ = painted_ || event->type() == QEvent::Paint;
        return false;
    }

  private:
    bool painted_ = false;
};

void tell(const char* what, double value) {
    std::printf("%s %.2f\n", what, value);
    std::fflush(stdout);
}

vantore::DataGrid& gridOf(const vantore::Form& form) {
    for (const auto& control : form.controls())
        if (auto* grid = dynamic_cast<vantore::DataGrid*>(control.get())) return *grid;
    throw std::runtime_error("the window has no grid");
}

/// Types into the first cell of a full grid, each key until it is seen.
double keyTime(FormWindow& window) {
    vantore::DataGrid& grid = gridOf(window.form());
    vantore::setDataRows(grid, fullGrid);
    grid.seen = nullptr;
    window.refresh();
    QElapsedTimer timer;
    timer.start();
    for (int i = 0; i < keyStrokes; ++i) {
        window.act([&] { window.form().key(grid, i % 2 == 0 ? '7' : vantore::keys::backspace); });
        QApplication::processEvents(); // paints
    }
    return milliseconds(timer) / keyStrokes;
}

/// One start of the program, told line by line as it happens.
int runOnce(int count, char** words) {
    QApplication application(count, words);
    vantore::setLook();
    vantore::DesktopSession session(words[1], vantore::moduleList());
    if (!session.start()) return 1;
    FormWindow& launcher = *session.windows().front();
    PaintWait(launcher).wait();
    tell("launcher", 0);
    QElapsedTimer timer;
    timer.start();
    const auto& first = dynamic_cast<vantore::Launcher&>(*session.suite().windows.forms().front());
    const vantore::Control& button = *first.moduleButton("COG");
    static_cast<QAbstractButton*>(launcher.widgetOf(button))->click();
    FormWindow& module = *session.windows().front();
    PaintWait(module).wait();
    tell("module", milliseconds(timer));
    tell("key", keyTime(module));
    return 0;
}

struct Times {
    std::vector<double> launcher, module, key;
};

/// Starts this program again as the one to be measured.
void measure(const QString& program, const QString& folder, Times& times) {
    QElapsedTimer timer;
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    timer.start();
    process.start(program, {folder});
    while (process.waitForReadyRead()) {
        while (process.canReadLine()) {
            const QStringList line = QString::fromUtf8(process.readLine()).trimmed().split(' ');
            if (line[0] == "launcher") times.launcher.push_back(milliseconds(timer));
            if (line[0] == "module") times.module.push_back(line[1].toDouble());
            if (line[0] == "key") times.key.push_back(line[1].toDouble());
        }
    }
    process.waitForFinished();
}

void print(const char* what, std::vector<double> values) {
    if (values.empty()) throw std::runtime_error("the program didn't start");
    std::sort(values.begin(), values.end());
    std::printf("%-34s median %7.2f ms   from %7.2f to %7.2f (%zu runs)\n", what, values[values.size() / 2],
                values.front(), values.back(), values.size());
}

} // namespace

int main(int count, char** words) {
    if (count == 2) return runOnce(count, words);
    const QTemporaryDir folder;
    vantore::writeDriverFile(vantore::pathOf(vantore::utf8Text(folder.filePath("VANTORE.DRV"))),
                             {.ioFolder = vantore::utf8Text(folder.path()) + "/", .setupDone = 1});
    Times times;
    for (int i = 0; i < runs; ++i) measure("/proc/self/exe", folder.path(), times);
    print("start to drawn launcher", times.launcher);
    print("button to drawn module window", times.module);
    print("a key in a grid of 500 rows", times.key);
    return 0;
}

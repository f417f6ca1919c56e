// Print's frame, the desktop capture, the About box and Help in the window. The capture puts a
// known picture on the screen and takes it back pixel for pixel (the whole desktop under Xvfb,
// the program's own windows offscreen). With $VEXLO_SHOT_DIR set, the frame, the capture form,
// the About and Enquiry boxes and the help pages are saved there as pictures.
#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDesktopServices>
#include <QDir>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QTest>
#include <QTextBrowser>
#include <QTimer>
#include <QUrl>

#include <functional>

#include "gui/capture/frm_vexlo_capture.h"
#include "gui/print/frm_vexlo_print.h"
#include "gui/shell/frm_vexlo.h"
#include "gui/utilities/frm_vexlo_about.h"
#include "main_window_support.h"
#include "scripted_dialogs.h"

namespace vexlo::test {
namespace {

void Shot(QWidget* widget, const QString& name) { SaveShot(widget, name); }

// Runs step once a modal widget of type T is up; fails if none comes within five seconds.
template <typename T>
void WhenModal(std::function<void(T&)> step) {
    auto* timer = new QTimer;
    auto tries = std::make_shared<int>(0);
    QObject::connect(timer, &QTimer::timeout, [timer, tries, step] {
        if (auto* w = qobject_cast<T*>(QApplication::activeModalWidget())) {
            timer->stop();
            timer->deleteLater();
            step(*w);
        } else if (++*tries > 250) {
            timer->stop();
            timer->deleteLater();
            ADD_FAILURE() << "no modal " << T::staticMetaObject.className();
        }
    });
    timer->start(20);
}

// Catches the file URLs that Qt would hand to the browser.
class UrlCatcher : public QObject {
    Q_OBJECT
public:
    Q_INVOKABLE void Open(const QUrl& url) { urls.push_back(url); }
    std::vector<QUrl> urls;
};

class UtilitiesWindow : public ::testing::Test {
protected:
    void Open() {
        window = OpenMainWindow();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(window.get()));
    }
    session::Session& s() { return window->session(); }

    ScriptedHost host;
    ScopedScriptedDialogs dialogs{host};
    std::unique_ptr<gui::FrmVexlo> window;
};

TEST_F(UtilitiesWindow, PrintFrameFollowsItsOptions) {
    Open();
    window->Item("mnuFileNew(0)")->trigger();
    window->Item("mnuFilePrint")->trigger();
    gui::PrintFrame& f = *window->fraPrint;
    ASSERT_TRUE(window->Frames[session::Frame::Print]->isVisible());
    EXPECT_TRUE(f.OptPrintSize[0]->isChecked());
    EXPECT_EQ(f.cboPrintSize->currentText(), "100");
    EXPECT_EQ(f.lblMargin->text(), "Left                 Top");
    f.OptPrintSize[2]->click();
    EXPECT_FALSE(f.cboLeftMargin->isEnabled());
    EXPECT_FALSE(f.OptPrintMargin[1]->isEnabled());
    EXPECT_EQ(f.cboLeftMargin->currentText(), "0.25");
    EXPECT_EQ(f.cboTopMargin->currentText(), "1.00");
    Shot(window.get(), "print_frame_fit");
    f.OptPrintSize[0]->click();
    EXPECT_TRUE(f.cboLeftMargin->isEnabled());
    EXPECT_EQ(f.cboLeftMargin->currentText(), "1.00");
    Shot(window.get(), "print_frame");
    f.cmdCancel->click();
    EXPECT_EQ(s().Form().VisibleFrame, session::Frame::ColorsPanel);
}

TEST_F(UtilitiesWindow, CaptureTakesTheSquareUnderTheBoxFromTheScreen) {
    // Offscreen there is no desktop to read; CTest runs this test under Xvfb (CaptureUnderXvfb).
    if (QGuiApplication::platformName() != "xcb") GTEST_SKIP() << "needs an X server";
    Open();
    window->move(300, 200);
    window->Item("mnuFileNew(1)")->trigger();
    // A known picture at the screen's top left.
    QImage known(96, 96, QImage::Format_RGB32);
    for (int y = 0; y < 96; ++y)
        for (int x = 0; x < 96; ++x) known.setPixel(x, y, qRgb(x * 2 + 1, y * 2 + 1, (x * y) & 0xFF));
    QLabel picture;
    picture.setWindowFlags(Qt::FramelessWindowHint);
    picture.setPixmap(QPixmap::fromImage(known));
    picture.setGeometry(0, 0, 96, 96);
    picture.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&picture));
    QTest::qWait(100);

    WhenModal<gui::FrmVexloCapture>([](gui::FrmVexloCapture& form) {
        QTest::mouseMove(&form, QPoint(10, 20));
        QTest::qWait(120);  // two ticks of Timer1 draw the box there
        EXPECT_TRUE(form.Timer1().isActive());
        Shot(&form, "capture_form");
        QTest::mouseRelease(&form, Qt::LeftButton, {}, QPoint(10, 20));
    });
    host.Answer(host::MsgAnswer::Ok);  // the reminder
    window->Item("mnuExtractCapture")->trigger();
    ASSERT_EQ(host.shown.size(), 1u);
    EXPECT_EQ(host.shown[0].text.rfind("Reminder:", 0), 0u);
    EXPECT_TRUE(window->isVisible());
    EXPECT_EQ(s().Current().KindText, "Screen capture");
    const surface::Surface& image = s().Icon().Image();
    int wrong = 0;
    for (int y = 0; y < 16; ++y)
        for (int x = 0; x < 16; ++x) {
            const QRgb want = known.pixel(11 + x, 21 + y);
            const surface::Color got = image.GetPixel(x, y);
            if (got != surface::Rgb(qRed(want), qGreen(want), qBlue(want)) && wrong++ < 5)
                ADD_FAILURE() << "pixel " << x << "," << y;
        }
    Shot(window.get(), "capture_result");
}

TEST_F(UtilitiesWindow, ARightClickLeavesTheIconAndBringsTheWindowBack) {
    Open();
    window->Item("mnuFileNew(0)")->trigger();
    WhenModal<gui::FrmVexloCapture>([this](gui::FrmVexloCapture& form) {
        EXPECT_FALSE(window->isVisible());
        QTest::mouseRelease(&form, Qt::RightButton, {}, QPoint(5, 5));
    });
    window->Item("mnuExtractCapture")->trigger();
    EXPECT_TRUE(window->isVisible());
    EXPECT_EQ(s().Current().KindText, "New icon");
    EXPECT_TRUE(host.shown.empty());
}

TEST_F(UtilitiesWindow, AboutShowsTheVersionAndTheMachine) {
    Open();
    host.Answer(host::MsgAnswer::Ok);
    WhenModal<gui::FrmVexloAbout>([](gui::FrmVexloAbout& about) {
        EXPECT_EQ(about.windowTitle(), "Vexlo");
        EXPECT_EQ(about.lblVersion->text().toStdString(),
                  utilities::AboutVersionText(VEXLO_TEST_VERSION_MAJOR, VEXLO_TEST_VERSION_MINOR, VEXLO_TEST_VERSION_PATCH));
        Shot(&about, "about");
        about.cmdInfo->click();
        about.cmdOK->click();
    });
    window->Item("mnuHelpAbout")->trigger();
    ASSERT_EQ(host.shown.size(), 1u);
    const QSize screen = QApplication::primaryScreen()->geometry().size();
    EXPECT_NE(host.shown[0].text.find("Screen Width (Pixel):   " + std::to_string(screen.width()) + "\r\n"),
              std::string::npos);
    EXPECT_EQ(host.shown[0].text.rfind("\r\nTotal RAM (KB):         ", 0), 0u);
    EXPECT_EQ(host.shown[0].icon, host::MsgIcon::Information);
}

TEST_F(UtilitiesWindow, HelpOpensTheBuildTreesHelpPageInTheBrowser) {
    Open();
    session::Directories dirs = s().Dirs();
    dirs.ProgramDir = VEXLO_TEST_BUILD_DIR;
    s().SetDirectories(dirs);
    UrlCatcher catcher;
    QDesktopServices::setUrlHandler("file", &catcher, "Open");
    window->Item("mnuHelpHTMLHelp")->trigger();
    QDesktopServices::unsetUrlHandler("file");
    ASSERT_EQ(catcher.urls.size(), 1u);
    const QUrl url = catcher.urls[0];
    EXPECT_EQ(url.toLocalFile(), QDir(VEXLO_TEST_BUILD_DIR).filePath("help/VexloHelp.html"));
    EXPECT_TRUE(host.shown.empty());
    // The pages as a browser shows them, pictures and all.
    for (const char* page : {"VexloHelp.html", "help_menus.html", "help_tools.html"}) {
        QTextBrowser browser;
        browser.resize(820, 900);
        browser.setSource(QUrl::fromLocalFile(QDir(VEXLO_TEST_BUILD_DIR).filePath(QString("help/") + page)));
        EXPECT_FALSE(browser.toPlainText().isEmpty()) << page;
        Shot(&browser, QString("help_") + page);
    }
}

TEST_F(UtilitiesWindow, EnquiryBoxesAsShown) {
    if (qgetenv("VEXLO_SHOT_DIR").isEmpty()) GTEST_SKIP() << "pictures only";
    Open();
    window->Item("mnuFileNew(0)")->trigger();
    platform::SetMessageBoxHandler({});  // the real box, closed by the timer
    for (int item : {0, 1, 4}) {
        WhenModal<QMessageBox>([item](QMessageBox& box) {
            Shot(&box, QString("enquiry_%1").arg(item));
            box.accept();
        });
        window->Item("mnuEnquiryCurrent(" + std::to_string(item) + ")")->trigger();
    }
}

}  // namespace
}  // namespace vexlo::test

#include "utilities_window_test.moc"

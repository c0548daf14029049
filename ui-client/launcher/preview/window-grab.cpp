// Pictures of windows for scripts/demo and scripts/screenshot-dialog, without an image toolkit.
//
//   window-grab                              reads requests from standard input, one a line,
//                                            "WINDOW-ID OUT.png" (an X window of any program, id
//                                            in decimal or 0x hex), saves what that window shows,
//                                            and answers each with one line: "ok WxH" or "error: ..."
//   window-grab --crop WxH+X+Y IN.png OUT.png   cuts that rectangle out of a picture
//
// The first form is started ahead of time and kept running: a Qt start on X takes about 0.1 s,
// which is a good part of the time the launcher's dialog is on screen.
#include <cstdio>
#include <iostream>
#include <string>

#include <QGuiApplication>
#include <QImage>
#include <QPixmap>
#include <QRect>
#include <QScreen>

namespace {

const int kPngQuality = 0;  // smallest file: the pictures go into the repository

int usage() {
    std::fprintf(stderr, "usage: window-grab < REQUESTS\n       window-grab --crop WxH+X+Y IN.png OUT.png\n");
    return 2;
}

int crop(const char* geometry, const char* in, const char* out) {
    int w, h, x, y;
    char end;
    if (std::sscanf(geometry, "%dx%d+%d+%d%c", &w, &h, &x, &y, &end) != 4 || w < 1 || h < 1) return usage();
    const QImage image(QString::fromLocal8Bit(in));
    const QRect rect(x, y, w, h);
    if (image.isNull() || !image.rect().contains(rect)) {
        std::fprintf(stderr, "window-grab: %s is no picture that holds %s\n", in, geometry);
        return 1;
    }
    if (!image.copy(rect).save(QString::fromLocal8Bit(out), "PNG", kPngQuality)) {
        std::fprintf(stderr, "window-grab: cannot write %s\n", out);
        return 1;
    }
    return 0;
}

// One request: "WINDOW-ID OUT.png"; the answer line.
std::string grab(const std::string& request) {
    const size_t space = request.find(' ');
    if (space == std::string::npos) return "error: expected 'WINDOW-ID OUT.png'";
    bool ok = false;
    const WId window = QString::fromStdString(request.substr(0, space)).toULongLong(&ok, 0);
    if (!ok || !window) return "error: not a window id: " + request.substr(0, space);
    const std::string out = request.substr(space + 1);
    const QPixmap shot = QGuiApplication::primaryScreen()->grabWindow(window);
    if (shot.isNull()) return "error: cannot grab window " + request.substr(0, space);
    if (!shot.save(QString::fromStdString(out), "PNG", kPngQuality)) return "error: cannot write " + out;
    return "ok " + std::to_string(shot.width()) + "x" + std::to_string(shot.height());
}

}  // namespace

int main(int argc, char** argv) {
    if (argc == 5 && std::string(argv[1]) == "--crop") return crop(argv[2], argv[3], argv[4]);
    if (argc != 1) return usage();
    QGuiApplication app(argc, argv);
    for (std::string line; std::getline(std::cin, line);) std::cout << grab(line) << std::endl;
    return 0;
}

// paintclock: starts a program on an X display and tells, in milliseconds since exec, when
// each of its top-level windows was first painted. It can click a point of the window of a
// given size once that has been painted, time the next window, and read the program's
// resident memory then. Built and used by startup.sh; it is not part of the program.
//
// "Painted" is the X server's DAMAGE report: the moment the server takes the first drawing
// request into the window. Qt draws a whole frame into its backing store and then sends it,
// so the first damage of a window is its first finished frame arriving on screen.
//
//   paintclock [--click WxH:X,Y] [--then WxH] [--settle MS] -- PROGRAM [ARGS...]
//
// Output, one event a line: "pid P", "paint MS WxH TITLE", "click MS", "rss KB hwm KB"
// (after --settle ms), "done" or "timeout".

#include <X11/Xatom.h>
#include <X11/Xlib.h>
#include <X11/extensions/XTest.h>
#include <X11/extensions/Xdamage.h>

#include <cmath>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <set>
#include <string>
#include <sys/select.h>
#include <sys/wait.h>
#include <time.h>
#include <unistd.h>

namespace {

double nowMs()
{
    timespec t;
    clock_gettime(CLOCK_MONOTONIC, &t);
    return t.tv_sec * 1e3 + t.tv_nsec / 1e6;
}

std::string titleOf(Display *display, Window window)
{
    Atom type;
    int format;
    unsigned long count;
    unsigned long after;
    unsigned char *data = nullptr;
    const Atom netName = XInternAtom(display, "_NET_WM_NAME", False);
    const Atom utf8 = XInternAtom(display, "UTF8_STRING", False);
    std::string title;
    if (XGetWindowProperty(
            display, window, netName, 0, 256, False, utf8, &type, &format, &count, &after, &data)
            == Success
        && data) {
        title.assign(reinterpret_cast<char *>(data), count);
        XFree(data);
    }
    return title;
}

// VmRSS and VmHWM of a process, in kB.
std::pair<long, long> residentMemory(pid_t pid)
{
    std::ifstream status("/proc/" + std::to_string(pid) + "/status");
    std::string line;
    long rss = -1;
    long hwm = -1;
    while (std::getline(status, line)) {
        if (line.rfind("VmRSS:", 0) == 0)
            rss = std::atol(line.c_str() + 6);
        else if (line.rfind("VmHWM:", 0) == 0)
            hwm = std::atol(line.c_str() + 6);
    }
    return {rss, hwm};
}

bool parseSize(const char *text, int &w, int &h)
{
    return std::sscanf(text, "%dx%d", &w, &h) == 2;
}

// Waits for the next X event; false when the deadline (monotonic ms) passes first.
bool nextEvent(Display *display, XEvent &event, double deadline)
{
    while (!XPending(display)) {
        const double left = deadline - nowMs();
        if (left <= 0)
            return false;
        const int fd = ConnectionNumber(display);
        fd_set readable;
        FD_ZERO(&readable);
        FD_SET(fd, &readable);
        timeval wait {long(left / 1000), long(std::fmod(left, 1000.0) * 1000)};
        select(fd + 1, &readable, nullptr, nullptr, &wait);
    }
    XNextEvent(display, &event);
    return true;
}

} // namespace

int main(int argc, char **argv)
{
    int clickW = 0, clickH = 0, clickX = 0, clickY = 0, thenW = 0, thenH = 0;
    int settleMs = 1000;
    int arg = 1;
    for (; arg < argc && std::strcmp(argv[arg], "--") != 0; ++arg) {
        if (!std::strcmp(argv[arg], "--click") && arg + 1 < argc) {
            if (std::sscanf(argv[++arg], "%dx%d:%d,%d", &clickW, &clickH, &clickX, &clickY) != 4)
                return 2;
        } else if (!std::strcmp(argv[arg], "--then") && arg + 1 < argc) {
            if (!parseSize(argv[++arg], thenW, thenH))
                return 2;
        } else if (!std::strcmp(argv[arg], "--settle") && arg + 1 < argc) {
            settleMs = std::atoi(argv[++arg]);
        } else {
            std::fprintf(stderr, "unknown option %s\n", argv[arg]);
            return 2;
        }
    }
    if (arg + 1 >= argc) {
        std::fprintf(stderr,
            "usage: paintclock [--click WxH:X,Y] [--then WxH] [--settle MS] -- PROGRAM "
            "[ARGS...]\n");
        return 2;
    }
    char **program = argv + arg + 1;

    Display *display = XOpenDisplay(nullptr);
    if (!display) {
        std::fprintf(stderr, "paintclock: no display\n");
        return 2;
    }
    int damageEvent = 0, damageError = 0, xtestEvent = 0, xtestError = 0, major = 0, minor = 0;
    if (!XDamageQueryExtension(display, &damageEvent, &damageError)
        || !XTestQueryExtension(display, &xtestEvent, &xtestError, &major, &minor)) {
        std::fprintf(stderr, "paintclock: the display lacks DAMAGE or XTEST\n");
        return 2;
    }
    const Window root = DefaultRootWindow(display);
    // Damage is attached when a window is created, long before the program can draw into it.
    XSelectInput(display, root, SubstructureNotifyMask);
    XSync(display, False);

    const double start = nowMs();
    const pid_t child = fork();
    if (child == 0) {
        execvp(program[0], program);
        _exit(127);
    }
    std::printf("pid %d\n", int(child));
    std::fflush(stdout);

    std::set<Window> painted;
    bool clicked = clickW == 0;
    bool finished = false;
    const double deadline = start + 30000;
    XEvent event;
    while (!finished && nextEvent(display, event, deadline)) {
        if (event.type == CreateNotify && event.xcreatewindow.parent == root) {
            XDamageCreate(display, event.xcreatewindow.window, XDamageReportNonEmpty);
            continue;
        }
        if (event.type != damageEvent + XDamageNotify)
            continue;
        const auto *damage = reinterpret_cast<XDamageNotifyEvent *>(&event);
        const double at = nowMs() - start;
        const Window window = damage->drawable;
        if (!painted.insert(window).second)
            continue;
        XDamageDestroy(display, damage->damage);
        XWindowAttributes attributes;
        if (!XGetWindowAttributes(display, window, &attributes))
            continue;
        const int w = attributes.width;
        const int h = attributes.height;
        std::printf("paint %.3f %dx%d %s\n", at, w, h, titleOf(display, window).c_str());
        std::fflush(stdout);

        if (!clicked && w == clickW && h == clickH) {
            // A person needs far longer than this to reach for the button; the pause lets
            // the first frame's aftermath settle so that the click is timed on its own.
            usleep(300 * 1000);
            int x = 0, y = 0;
            Window ignored;
            XTranslateCoordinates(display, window, root, clickX, clickY, &x, &y, &ignored);
            XTestFakeMotionEvent(display, -1, x, y, CurrentTime);
            XSync(display, False);
            usleep(20 * 1000);
            std::printf("click %.3f\n", nowMs() - start);
            XTestFakeButtonEvent(display, 1, True, CurrentTime);
            XTestFakeButtonEvent(display, 1, False, CurrentTime);
            XSync(display, False);
            std::fflush(stdout);
            clicked = true;
        } else if (clicked && (thenW == 0 || (w == thenW && h == thenH))) {
            usleep(settleMs * 1000);
            const auto [rss, hwm] = residentMemory(child);
            std::printf("rss %ld hwm %ld\n", rss, hwm);
            finished = true;
        }
    }
    std::printf(finished ? "done\n" : "timeout\n");
    std::fflush(stdout);
    kill(child, SIGTERM);
    waitpid(child, nullptr, 0);
    XCloseDisplay(display);
    return finished ? 0 : 1;
}

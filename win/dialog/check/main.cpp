// dialog-view-check: the real view shown with the form as designed, without a host.
//   dialog-view-check layout [--long] [--hold SECONDS]   overlap and clipping of every control
//   dialog-view-check view                               drawings, colours, icon, preview
// --long lengthens every translated caption (a longer translation); --hold keeps the dialog
// open for a screenshot instead of checking. Prints one line per fault and a summary; exits 1
// on any fault.
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "Harness.h"

int main(int argc, char** argv) {
    if (argc < 2) {
        std::printf("usage: dialog-view-check layout [--long] [--hold SECONDS] | view\n");
        return 2;
    }
    bool longer = false;
    int hold = 0;
    for (int i = 2; i < argc; ++i) {
        if (std::strcmp(argv[i], "--long") == 0) longer = true;
        if (std::strcmp(argv[i], "--hold") == 0 && i + 1 < argc) hold = std::atoi(argv[++i]);
    }
    const bool layout = std::strcmp(argv[1], "layout") == 0;
    const int faults =
        layout ? quorbel::check::layoutChecks(longer, hold) : quorbel::check::viewChecks();
    std::printf("%s: %d faults\n", argv[1], faults);
    std::fflush(stdout);
    return faults == 0 ? 0 : 1;
}

#include <cstdio>

#include "quenlocale.h"

int main() {
    Q_INIT_RESOURCE(texts);
    std::printf("%s\n", qPrintable(QuenLocale::getDefaultLanguage()));
}

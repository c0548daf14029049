#include <cstdio>

#include "quenlocale.h"

int qInitResources_texts();

int main() {
    qInitResources_texts();
    std::printf("%s\n", qPrintable(QuenLocale::getDefaultLanguage()));
    return 0;
}

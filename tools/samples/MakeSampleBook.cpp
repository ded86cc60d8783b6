#include "WriteSamples.h"

// Apart from the other samples, so that `make book` need not compile those.
int main(int argc, char** argv) {
    return writeSamples(argc, argv, bookSamples);
}

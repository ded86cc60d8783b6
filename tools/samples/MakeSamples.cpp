#include "WriteSamples.h"

namespace {

std::vector<Sample> testSamples() {
    std::vector<Sample> all;
    for (const auto& group :
         {documentSamples, textSamples, navigationSamples, boxSamples, imageSamples, scriptSamples,
          brokenSamples, hostileSamples, referenceSamples})
        for (Sample& sample : group())
            all.push_back(std::move(sample));
    return all;
}

} // namespace

int main(int argc, char** argv) {
    return writeSamples(argc, argv, testSamples, benchmarkSamples);
}

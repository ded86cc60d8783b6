#pragma once

#include <QByteArray>
#include <functional>
#include <vector>

// One document to make. The same program always makes the same bytes.
struct Sample {
    const char* fileName;
    std::function<QByteArray()> make;
};

std::vector<Sample> bookSamples();
// A novel, a picture book and slides: typical documents.
std::vector<Sample> documentSamples();
std::vector<Sample> textSamples();
std::vector<Sample> navigationSamples();
std::vector<Sample> boxSamples();
std::vector<Sample> imageSamples();
std::vector<Sample> scriptSamples();
std::vector<Sample> brokenSamples();
std::vector<Sample> hostileSamples();
std::vector<Sample> referenceSamples();
// Large documents that only the benchmarks read.
std::vector<Sample> benchmarkSamples();

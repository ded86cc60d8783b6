#include "Fuzz.h"
#include "util/NSData+CocoaDevUsersAdditions.h"
#include "util/NSData+CommonCrypto.h"

namespace {

using namespace NSDataExtension;

constexpr qsizetype inflateLimit = 65'536;

void checkTextCodecs(const QByteArray& data) {
    Fuzz::require(dataWithBase32String(base32String(data)) == data, "base32 comes back");
    const QByteArray read = dataWithBase32String(QString::fromUtf8(data));
    Fuzz::require(read.size() <= data.size() * 5 / 8, "base32 holds five bits a letter");

    const QByteArray stuffed = encodeCOBS(data);
    Fuzz::require(!stuffed.contains('\0'), "stuffed bytes hold no zero");
    Fuzz::require(decodeCOBS(stuffed) == data + '\0', "stuffed bytes come back");
    Fuzz::require(decodeCOBS(data).size() <= data.size(), "unstuffed bytes don't grow");

    const auto found = rangeOfNullTerminatedBytesFrom(data, data.size() / 2);
    if (found.location != Range::notFound)
        Fuzz::require(data[found.location + found.length] == '\0', "a zero byte ends the range");
}

void checkCompression(const QByteArray& data) {
    for (const QByteArray& inflated :
         {zlibInflate(data, inflateLimit), gzipInflate(data, inflateLimit)})
        Fuzz::require(inflated.size() <= inflateLimit, "the limit holds");
    const QByteArray zipped = gzipDeflate(data);
    Fuzz::require(zlibInflate(zlibDeflate(data), data.size()) == data, "a zlib stream comes back");
    Fuzz::require(gzipInflate(zipped, data.size()) == data, "a gzip stream comes back");
    if (!data.isEmpty())
        Fuzz::require(gzipInflate(zipped, data.size() - 1).isNull(), "a byte too much is refused");
}

struct CipherChoice {
    CCAlgorithm algorithm;
    int options;
    QByteArray key;
    QByteArray vector;
};

CipherChoice choiceFrom(Fuzz::Input& input) {
    CipherChoice choice{static_cast<CCAlgorithm>(input.byte() % 6), int(input.byte() % 4), "", {}};
    choice.key += input.bytes(qsizetype(input.byte()));
    if (input.byte() % 2 == 1)
        choice.vector = input.bytes(16);
    return choice;
}

void checkCipher(const CipherChoice& choice, const QByteArray& data) {
    int status = CCSuccess;
    const QByteArray opened = LowLevelCommonCryptor::decryptedDataUsingAlgorithm(
        data, choice.algorithm, choice.key, choice.vector, choice.options, &status);
    Fuzz::require(opened.isNull() == (status != CCSuccess), "no result has a reason");
    Fuzz::require(opened.size() <= data.size(), "deciphering adds nothing");

    status = CCSuccess;
    const QByteArray closed = LowLevelCommonCryptor::dataEncryptedUsingAlgorithm(
        data, choice.algorithm, choice.key, choice.vector, choice.options, &status);
    Fuzz::require(closed.isNull() == (status != CCSuccess), "no result has a reason");
    if (closed.isNull())
        return;
    Fuzz::require(LowLevelCommonCryptor::decryptedDataUsingAlgorithm(
                      closed, choice.algorithm, choice.key, choice.vector, choice.options) == data,
                  "what was enciphered comes back");
}

} // namespace

// Choices for the cipher, then the data for all.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    checkTextCodecs(Fuzz::Input(data, size).rest());
    checkCompression(Fuzz::Input(data, size).rest());
    Fuzz::Input input(data, size);
    const CipherChoice choice = choiceFrom(input);
    checkCipher(choice, input.rest());
    return 0;
}

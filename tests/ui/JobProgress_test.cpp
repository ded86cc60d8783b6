#include "ui/JobProgress.h"

#include <gtest/gtest.h>

using namespace std::chrono_literals;

namespace {

TEST(JobProgressTest, TellsTheTimeLeftOnceItCanBeTold) {
    struct Case {
        double share;
        std::chrono::milliseconds taken;
        const char* text;
    };
    for (const auto& [share, taken, text] : {Case{0, 0s, "0 %"},
                                             {0.01, 30s, "1 %"},
                                             {0.29, 3s, "29 %"},
                                             {0.5, 40s, "50 %, less than a minute left"},
                                             {0.25, 40s, "25 %, about 2 minute(s) left"},
                                             {0.1, 600s, "10 %, about 2 hour(s) left"},
                                             {1, 600s, "100 %"}})
        EXPECT_EQ(JobProgress::textFor(share, taken).toStdString(), text);
}

TEST(JobProgressTest, EndsOnceAndIsSilentWithoutAJob) {
    JobProgress job;
    QStringList told;
    QObject::connect(&job, &JobProgress::ended, [&](const QString& message) { told << message; });
    job.end("early");
    job.begin();
    job.show(0.25);
    job.show(0.1);
    EXPECT_EQ(job.text(), "25 %");
    job.end("done");
    job.end("again");
    EXPECT_EQ(told, QStringList{"done"});
    EXPECT_EQ(job.text(), "");
}

} // namespace

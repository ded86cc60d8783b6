#pragma once

#include <QProgressDialog>

class JobProgress;

// The window with the progress of a publish, over its sheet: that of a job that first makes the
// pages, where there are none for that kind of book, and then writes the book. Whoever makes it
// deletes it when the job ends, and not before it.
class PublishProgress : public QProgressDialog {
    Q_OBJECT

public:
    // Shows itself at once where the work is known to take time, and else only if it does.
    enum Appearance { atOnce, whenSlow };

    PublishProgress(QWidget* sheet, JobProgress& job, Appearance appearance);

    // done pages of the total are made.
    void showPages(int done, int total);
    // So much of the files, 0 to 1, is written.
    void showFiles(double share);

private:
    void advance(double share);

    JobProgress& iJob;
    double iShareOfPages = 0; // of the job
};

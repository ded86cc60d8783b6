#pragma once

// Seconds for each step of making a page's files.
struct PageTiming {
    double draw = 0;
    double encode = 0;
    double write = 0;

    PageTiming& operator+=(const PageTiming& other) {
        draw += other.draw;
        encode += other.encode;
        write += other.write;
        return *this;
    }
};

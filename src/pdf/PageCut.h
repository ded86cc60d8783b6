#pragma once

// What a page of a book shows of a page of the document: all of it, or the left or right half as
// displayed.
struct PageCut {
    enum class Part { whole, left, right };

    PageCut(int pageIndex, Part ofPage = Part::whole) : index(pageIndex), part(ofPage) {}

    int index; // zero-based, of the document's page
    Part part;
};

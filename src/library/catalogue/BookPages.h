#pragma once

struct CatalogueSite;

// A page for each book with all that is known of it.
namespace BookPages {

void write(const CatalogueSite& site);

} // namespace BookPages

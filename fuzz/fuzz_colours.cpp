#include "brand/brand.h"
#include "bytes.h"

using quib::Brand;

/// Any word is an opaque colour, whatever its case and the "#" around it, and any status has one.
int LLVMFuzzerTestOneInput(const char* bytes, std::size_t size)
{
    const auto word = Bytes(bytes, size).text();
    const auto color = Brand::named(word);
    demand(color.isValid() && color.alpha() == 255);
    const bool isGold = color == Brand::gold(); // By a word that bears no "#".
    demand(isGold || color == Brand::named(u'#' + word + u'#'));
    demand(word.size() < 7 || word.contains(u'#') || color == Brand::glow());
    demand(Brand::color(word).isValid());
    demand(Brand::letterColor(word).isValid());
    return 0;
}

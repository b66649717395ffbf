#include "catalogue/xml_arena.h"

std::byte* XmlArena::AddOwnBlock(size_t size) {
    return blocks_.emplace_back(std::make_unique_for_overwrite<std::byte[]>(size)).get();
}

void XmlArena::AddBlock() {
    next_ = AddOwnBlock(blockSize_);
    end_ = next_ + blockSize_;
    if (blockSize_ < kLargestBlock) blockSize_ *= 4;
}

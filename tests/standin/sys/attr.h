// SPDX-License-Identifier: MIT
// Replaces the macOS header of this name, as far as the bulk directory reader needs it. BulkStandIn.cpp implements the
// call on the directories of this machine.
#pragma once

#include <cstddef>
#include <cstdint>

constexpr std::uint16_t ATTR_BIT_MAP_COUNT = 5;

constexpr std::uint32_t ATTR_CMN_NAME = 0x00000001;
constexpr std::uint32_t ATTR_CMN_DEVID = 0x00000002;
constexpr std::uint32_t ATTR_CMN_OBJTYPE = 0x00000008;
constexpr std::uint32_t ATTR_CMN_MODTIME = 0x00000400;
constexpr std::uint32_t ATTR_CMN_FILEID = 0x02000000;
constexpr std::uint32_t ATTR_CMN_RETURNED_ATTRS = 0x80000000;

constexpr std::uint32_t ATTR_FILE_LINKCOUNT = 0x00000001;
constexpr std::uint32_t ATTR_FILE_ALLOCSIZE = 0x00000004;

constexpr std::uint64_t FSOPT_NOFOLLOW = 0x00000001;
constexpr std::uint64_t FSOPT_PACK_INVAL_ATTRS = 0x00000008;

struct attrlist {
    std::uint16_t bitmapcount;
    std::uint16_t reserved;
    std::uint32_t commonattr;
    std::uint32_t volattr;
    std::uint32_t dirattr;
    std::uint32_t fileattr;
    std::uint32_t forkattr;
};

int getattrlistbulk(int directory, void* request, void* buffer, std::size_t size, std::uint64_t options);

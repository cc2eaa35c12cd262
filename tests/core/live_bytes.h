#ifndef KX_TESTS_CORE_LIVE_BYTES_H
#define KX_TESTS_CORE_LIVE_BYTES_H

// Programs that use this list live_bytes.cpp, which replaces the global operator new and delete.

/// The bytes of all blocks that are allocated now, with what an allocator adds to each.
long LiveBytes();

/// The most of them since the last call.
long PeakOfLiveBytes();

#endif  // KX_TESTS_CORE_LIVE_BYTES_H

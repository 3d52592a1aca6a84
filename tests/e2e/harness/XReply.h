#pragma once

#include <cstdlib>
#include <memory>

struct XReplyDeleter {
    void operator()(void *reply) const { std::free(reply); }
};

/// A reply of the X server, which the receiver has to free; null when the request failed.
template <typename Reply> using XReply = std::unique_ptr<Reply, XReplyDeleter>;

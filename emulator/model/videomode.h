// A size and a rate of video, as people write them: 1920x1080@60, 1920x1080i@59.94. Any one thread.
#pragma once

#include <QString>
#include <optional>

struct VideoMode {
    int width = 1920;
    int height = 1080;
    int rateCentiHz = 6000;
    bool interlaced = false;

    QString text() const;
    /// Nothing if the text is no mode or its numbers have no room in 16 bits.
    static std::optional<VideoMode> parse(const QString &text);

    bool operator==(const VideoMode &other) const
    {
        return width == other.width && height == other.height && rateCentiHz == other.rateCentiHz &&
               interlaced == other.interlaced;
    }
};

#include "WidgetHost/Gallery/GalleryContent.h"

namespace orvel {

GalleryWords galleryWords(const HostWords& words)
{
    return {
        .title = words.galleryTitle(),
        .add = words.add(),
        .added = words.added(),
        .reduceTransparency = words.reduceTransparency(),
        .biggerText = words.biggerText(),
        .tryAgain = words.tryAgain(),
    };
}

}

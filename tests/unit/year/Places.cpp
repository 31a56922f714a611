#include "unit/year/Places.h"

const std::vector<Arrangement>& arrangements() {
    static const auto* const all = new std::vector<Arrangement>{
        {.screens = {{{{0, 0}, {1440, 900}}}},
         .places = {{{720, 450}, ""},
                    {{0, 899}, "topLeft"},
                    {{15, 885}, "topLeft"},
                    {{15.01, 885}, ""},
                    {{1439, 899}, "topRight"},
                    {{5000, 885}, "topRight"},
                    {{0, 0}, "bottomLeft"},
                    {{-300, -300}, "bottomLeft"},
                    {{1439, 0}, "bottomRight"},
                    {{1425, 15}, "bottomRight"},
                    {{1425, 15.01}, ""}}},
        {.screens = {{{{0, 0}, {1440, 900}}}, {{{-1920, 0}, {1920, 1080}}}},
         .places = {{{-960, 500}, ""},
                    {{-960, 890}, "topLeft"},
                    {{-960, 10}, "bottomLeft"},
                    {{1439, 0}, "bottomRight"},
                    {{1430, 1000}, "topRight"}}},
        {.screens = {{{{0, 0}, {20, 20}}}},
         .places = {{{10, 10}, "topLeft"},
                    {{16, 10}, "topRight"},
                    {{10, 4}, "bottomLeft"},
                    {{16, 4}, "bottomRight"}}},
        {.screens = {}, .places = {{{0, 0}, ""}, {{1439, 0}, ""}}},
    };
    return *all;
}

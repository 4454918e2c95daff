#include "worker/engine/smooth_shading.h"

namespace norvex::engine {

// What Poppler's page has defined when it calls axialSH or radialSH with "from to depth": func (a parameter to n
// components), n, the parameter's range t0 t1 dt, the end points x0 y0 x1 y1, the radii r0 r1, and the colour space
// with its transformation. Its own procedures call themselves with depths above 0; those calls are passed on.
// NorvexSample leaves a function dictionary and true, or false.
QByteArray smoothShadingProcedures() {
  return R"(xpdf begin
systemdict /shfill known {
/NorvexSample {
  /pdfFillXform load length 0 eq dt 0 gt and {
    /NorvexInside true def
    /NorvexTable 256 n mul string def
    0 1 255 {
      dup 255 div dt mul t0 add func
      n 1 sub -1 0 {
        exch dup dup -0.001 lt exch 1.001 gt or { /NorvexInside false def } if
        255 mul round cvi dup 0 lt { pop 0 } if dup 255 gt { pop 255 } if
        exch dup 2 add index n mul add exch NorvexTable 3 1 roll put
      } for
      pop
    } for
    NorvexInside {
      8 dict begin
      /FunctionType 0 def /Domain [t0 t1] def /Range [ n { 0 1 } repeat ] def
      /Size [256] def /BitsPerSample 8 def /DataSource NorvexTable def
      currentdict end true
    } { false } ifelse
  } { false } ifelse
} def
/NorvexShade {
  8 dict begin
  /Coords exch def /ShadingType exch def /Function exch def
  /Extend 3 index -0.00001 lt 3 index 1.00001 gt 2 array astore def
  /Domain [t0 t1] def /ColorSpace pdfFillCS def
  currentdict end
  { shfill } stopped { pop $error /newerror false put false } { pop pop pop true } ifelse
} def
/NorvexAxial /axialSH load def
/axialSH {
  dup 0 eq { NorvexSample } { false } ifelse
  { 2 [x0 y0 x1 y1] NorvexShade } { false } ifelse
  { } { NorvexAxial } ifelse
} def
/NorvexRadial /radialSH load def
/radialSH {
  dup 0 eq { NorvexSample } { false } ifelse
  { 3 [x0 y0 r0 x1 y1 r1] NorvexShade } { false } ifelse
  { } { NorvexRadial } ifelse
} def
} if
end
)";
}

}  // namespace norvex::engine

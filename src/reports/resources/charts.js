// Our own script for the report page: the bars are drawn by the page's CSS;
// this only adds each bar's share of the total as its tooltip. It reads the
// page and touches nothing outside it.
(function () {
  "use strict";
  var bars = document.querySelectorAll(".bar, .stack");
  for (var i = 0; i < bars.length; i++) {
    var style = getComputedStyle(bars[i]);
    var value = parseFloat(style.getPropertyValue("--v"));
    // "--max" is written "max(N, 1)" so that an empty report divides by 1.
    var max = parseFloat(getComputedStyle(bars[i].closest("table")).getPropertyValue("--max").replace(/^\s*max\(/, ""));
    if (isFinite(value) && isFinite(max) && max > 0)
      bars[i].title = Math.round(100 * value / max) + " %";
  }
})();

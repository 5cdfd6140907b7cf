/* Replaced by the bridge's sources. */
typedef int TouchBridgePlaceholder;

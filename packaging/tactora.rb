# The Homebrew cask of a release. The release workflow fills in the version, the disk image's
# checksum and the repository, and attaches the result to the release; publish that file in a
# tap (for example Casks/tactora.rb of a homebrew-tactora repository).
cask "tactora" do
  version "@VERSION@"
  sha256 "@SHA256@"

  url "https://github.com/@REPOSITORY@/releases/download/v#{version}/Tactora-#{version}.dmg"
  name "Tactora"
  desc "Taps and clicks with several fingers on the Magic Mouse"
  homepage "https://github.com/@REPOSITORY@"

  depends_on arch: :arm64
  depends_on macos: ">= :ventura"

  app "Tactora.app"

  zap trash: [
    "~/Library/Logs/Tactora",
    "~/Library/Preferences/app.tactora.Tactora.plist",
  ]
end

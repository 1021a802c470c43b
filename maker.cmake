# What belongs to the maker of a build rather than to the program: who it is, and where its pages are.
# This is the only place to fill it in. The values are compiled into the application; to use a file of
# your own, configure with -DPELMIRA_MAKER=/path/to/it.
#
# Those below are examples that harm nobody: nothing is connected to, and every page leads to a host
# that is reserved for examples. An empty value means that there is none: what needs it is then not
# offered, or says so.

set(MAKER_VERSION "0.1.0")
set(MAKER_DISPLAY_NAME "Pelmira")

# The application's page. Software centres show the pictures of its folder "screenshots", which are
# those of docs/images/screenshots.
set(MAKER_WEBSITE "https://pelmira.example")

# Who answers for the Debian package.
set(MAKER_PACKAGE_CONTACT "The Pelmira developers <developers@pelmira.example>")

# The store: the host of its pages, the application's numeric identifier there, and the tokens that
# the links to it carry. "Rate" needs all four.
set(MAKER_STORE "https://www.example.org")
set(MAKER_APPLE_ID "1234567890")
set(MAKER_AFFILIATE_TOKEN "example")
set(MAKER_REVIEW_CAMPAIGN_TOKEN "PelmiraReview")

# The settings are offered only with both of these and with the identifier.
set(MAKER_TERMS_URL "https://www.example.org/pelmira/terms.html")
set(MAKER_PRIVACY_URL "https://www.example.org/pelmira/privacy.html")

# Where the support mail goes.
set(MAKER_SUPPORT_ADDRESS "support@example.org")

# The social page: the account's name, for the service's own application, and its page on the web.
set(MAKER_INSTAGRAM_ACCOUNT "pelmira-example")
set(MAKER_INSTAGRAM_WEB_URL "https://www.example.org/pelmira-example")

# A host with help pages ("www.example.org"): the page is then fetched by HTTP from
# /app-help/pelmira/help.html there, each time that help is opened. Empty: the pages that ship.
set(MAKER_HELP_HOST "")

# The list of the maker's other applications, a JSON file that is fetched at each start
# ("http://files.example.org/pelmira-more-apps-CODEWORD.json"). Empty: the application never
# connects to anything at the start, and says that there is no list.
set(MAKER_FEED_URL "")

# ON where the user has to be asked before anything is noted about what is used; a row of the
# settings then leads to that question.
set(MAKER_CONSENT_APPLIES OFF)
